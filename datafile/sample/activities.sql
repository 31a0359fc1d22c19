-- Events, attendance, contributions and notes of the sample organisation.

INSERT INTO EventInformation (EventIdentification, EventDate, EventName, EventDescription, EventStartDate, EventEndDate,
                              EventStartTime, EventEndTime, EventStartTimeAmPm, EventEndTimeAmPm, Active) VALUES
( 1, '2003-01-06 00:00:00', 'Annual Dinner', 'Dinner, then the report on the year', '3/15/2003', '3/15/2003', '18:30', '22:00', 'PM', 'PM', -1),
( 2, '2003-01-06 00:00:00', 'Annual General Meeting', 'Elections and budget', '1/25/2003', '1/25/2003', '10:0', '12:30', 'AM', 'PM', -1),
( 3, '2003-01-20 00:00:00', 'Bird Walk', 'Wetlands, bring boots', '4/12/2003', '4/12/2003', '6:30', '10:0', 'AM', 'AM', -1),
( 4, '2003-02-03 00:00:00', 'Book Sale', '', '5/10/2003', '5/11/2003', '9:0', '17:0', 'AM', 'PM', -1),
( 5, '2003-02-03 00:00:00', 'Chess Tournament', 'Seven rounds, Swiss system', '2/22/2003', '2/23/2003', '9:30', '18:0', 'AM', 'PM', -1),
( 6, '2003-02-17 00:00:00', 'Choir Evening', 'Songs of the sea', '6/6/2003', '6/6/2003', '19:0', '21:0', 'PM', 'PM', -1),
( 7, '2003-03-03 00:00:00', 'First Aid Course', 'Two evenings', '3/24/2003', '3/25/2003', '18:0', '21:0', 'PM', 'PM', -1),
( 8, '2003-03-17 00:00:00', 'Garden Day', 'Planting in the city park', '4/26/2003', '4/26/2003', '10:0', '16:0', 'AM', 'PM', -1),
( 9, '2003-03-17 00:00:00', 'New Member Evening', NULL, '4/4/2003', '', '19:0', '', 'PM', '', -1),
(10, '2003-04-07 00:00:00', 'Open House', 'Everybody is welcome', '5/3/2003', '5/3/2003', '13:0', '17:0', 'PM', 'PM', -1),
(11, '2003-04-07 00:00:00', 'Pottery Workshop', 'Clay is provided', '5/17/2003', '5/18/2003', '10:0', '15:0', 'AM', 'PM', -1),
(12, '2002-04-22 00:00:00', 'Picnic 2002', 'The picnic of last year', '6/22/2002', '6/22/2002', '11:0', '16:0', 'AM', 'PM', 0),
(13, '2003-04-22 00:00:00', 'Regatta', 'On the bay; depends on the weather', '7/12/2003', '7/13/2003', '8:0', '18:0', 'AM', 'PM', -1),
(14, '2003-05-05 00:00:00', 'Summer Picnic', 'Bring a dish', '6/21/2003', '6/21/2003', '11:0', '16:0', 'AM', 'PM', -1),
(15, '2003-05-05 00:00:00', 'Trail Survey', '', 'the first dry weekend', '', '', '', '', '', -1),
(16, '2003-05-19 00:00:00', 'Élan: an evening of French song', 'Begins with an accented letter', '9/19/2003', '9/19/2003', '19:30', '21:30', 'PM', 'PM', -1),
(17, '2003-05-19 00:00:00', '50th Anniversary', 'Begins with a digit', '10/4/2003', '10/5/2003', '12:0', '23:0', 'PM', 'PM', -1);

-- The name is a copy: "Annual Banquet" was renamed since.
INSERT INTO EventMemberInfo (MemberId, EventName, EventActualStartTime, EventActualEndTime, EventActualDate,
                             EventComments) VALUES
( 1, 'Annual Dinner', '18:30', '22:00', '3/15/2003', 'Sat at the table of the speakers'),
( 1, 'Book Sale', '9:00', '13:00', '5/10/2003', ''),
( 2, 'Annual Banquet', '18:00', '21:15', '3/16/2002', 'Guest of honour'),
( 3, 'First Aid Course', '18:00', '21:00', '3/24/2003', 'Taught the course'),
( 4, 'Trail Survey', '', '', 'May or June', NULL),
( 5, 'Bird Walk', '6:30', '10:15', '4/12/2003', 'Saw 42 species' || char(13, 10) || 'among them an osprey'),
( 6, 'Chess Tournament', '9:30', '18:00', '2/22/2003', 'Third place'),
( 7, 'Regatta', '8:00', NULL, '7/12/2003', ''), ( 8, 'Regatta', '8:00', NULL, '7/12/2003', 'Skipper'),
( 9, 'Pottery Workshop', '9:00', '15:30', '5/17/2003', 'Held the workshop'),
(14, 'Choir Evening', '19:00', '21:00', '6/6/2003', ''), (14, 'First Aid Course', '18:10', '21:00', '3/24/2003', ''),
(16, 'Annual Dinner', '17:00', '23:00', '3/15/2003', 'Catering'),
(22, 'Élan: an evening of French song', '', '', '', 'Will sing'),
(28, 'Chess Tournament', '9:30', '17:00', '2/22/2003', ''), (31, 'Open House', '13:00', '17:00', '5/3/2003', 'Origami table'),
(36, 'Regatta', '8:00', '18:30', '7/12/2003', 'Winner'), (41, 'Annual Dinner', '18:30', '22:00', '3/15/2003', 'Pictures'),
(47, 'Chess Tournament', '9:30', '18:00', '2/22/2003', 'Winner, 6½ points'), (53, 'Garden Day', '10:00', '16:00', '4/26/2003', 'Brought seeds'),
(58, 'Garden Day', '10:00', '14:00', '4/26/2003', NULL), (61, 'New Member Evening', '19:00', '21:00', '4/4/2003', '');

INSERT INTO Contributions (MemberId, ContributionDate, ContributionAmount, ContributionNotes) VALUES
( 1, '2002-12-30 00:00:00', 50, 'Dues 2003'), ( 1, '2003-03-15 00:00:00', 125.5, 'Raffle at the annual dinner'),
( 2, '2003-01-25 00:00:00', 25, 'Dues 2003, senior'), ( 3, '2003-01-25 00:00:00', 80, 'Dues 2003, family'),
( 4, '2003-02-01 00:00:00', 50, ''), ( 5, '2003-02-03 00:00:00', 50, NULL), ( 5, '2003-04-14 00:00:00', 19.99, 'Bird guide'),
( 7, '2003-01-10 00:00:00', 80, 'Dues 2003, family'), ( 8, '2003-04-22 00:00:00', 1500, 'Buoys for the regatta'),
(10, '2001-06-30 00:00:00', 2500, 'Life membership'), (10, '2003-03-15 00:00:00', 333.3333, 'Third part of a pledge of 1,000'),
(13, NULL, 75, 'Cheque without a date'), (14, '2003-01-25 00:00:00', 50, 'Dues 2003'),
(16, '2003-03-15 00:00:00', 0.01, 'Found under the table'), (17, '2003-02-10 00:00:00', 50, 'Dues 2003'),
(20, '2003-01-02 00:00:00', 50, 'Dues 2003'), (20, '2003-01-31 00:00:00', -50, 'Dues paid twice: returned'),
(20, '2002-12-28 00:00:00', 50, 'Dues 2003'), (25, '2003-05-03 00:00:00', 250, ''), (28, '2003-02-22 00:00:00', 40.0625, 'Share of the entry fees'),
(31, '2003-05-03 00:00:00', 18.75, 'Origami table'), (36, '2003-07-12 00:00:00', 60, ''), (38, '1998-09-01 00:00:00', 2000, 'Life membership'),
(38, '2003-05-19 00:00:00', 10000, 'For the 50th anniversary' || char(13, 10) || 'to be spent on music'),
(43, '2003-03-31 00:00:00', 50, 'Dues 2003'), (46, '2003-04-01 00:00:00', NULL, 'Printed the newsletter: no money'),
(53, '2003-04-26 00:00:00', 35, 'Seeds'), (61, '2003-04-04 00:00:00', 15, 'Dues 2003, student');

-- Times stand on the day of the meeting, or on day 0 when only the time was typed.
INSERT INTO MeetingInfo (MemberId, PersonalInformationId, MeetingDate, MeetingStartTime, MeetingEndTime,
                         MeetingEnteredDate, MeetingType, MeetingCatagory, MeetingSubject, MeetingNotes) VALUES
( 1, NULL, '2003-03-17 00:00:00', '1899-12-30 09:00:00', '1899-12-30 10:30:15', '2003-03-17 10:31:02', 'Phone Conversation', 'Event Planning', 'After the dinner', 'Everybody was pleased.' || char(13, 10) || 'Next year: more chairs.'),
( 1, NULL, '2003-05-12 00:00:00', '1899-12-30 10:00:50', '1899-12-30 10:01:10', '2003-05-12 10:02:00', 'Phone Conversation', 'General', 'Left a message', ''),
( 4, NULL, '2003-05-20 00:00:00', '1899-12-30 16:15:00', NULL, '2003-05-20 16:20:41', 'Trail Survey', 'Instructional', 'Compass is missing', 'He will look in the shed.'),
( 7, NULL, '2003-02-11 00:00:00', '1899-12-30 13:05:00', '1899-12-30 13:50:00', '2003-02-11 14:00:00', 'Member Meeting', 'Membership', 'Family membership', NULL),
( 8, NULL, '2003-07-11 00:00:00', '2003-07-11 22:30:00', '2003-07-12 01:10:00', '2003-07-14 08:00:00', 'Regatta', 'Event Planning', 'Buoys laid at night', 'On the water past midnight.'),
(10, NULL, '2003-01-28 00:00:00', '1899-12-30 11:00:00', '1899-12-30 11:20:30', '2003-01-28 11:21:00', 'Phone Conversation', 'Fund Raising', 'Pledge', 'Pays in three parts.'),
(16, NULL, '2003-03-10 00:00:00', '1899-12-30 07:45:00', '1899-12-30 07:58:00', '2003-03-10 08:00:00', 'Phone Conversation', 'Event Planning', 'Dangelo: bread', '120 rolls, 15 loaves'),
(20, NULL, '2003-01-30 00:00:00', '1899-12-30 14:00:00', '1899-12-30 14:06:00', '2003-01-30 14:06:30', 'Phone Conversation', 'Complaint', 'Dues taken twice', 'Treasurer returns 50.00.'),
(26, NULL, '2002-10-04 00:00:00', '1899-12-30 15:30:00', '1899-12-30 16:00:00', '2002-10-04 16:05:00', 'Member Meeting', 'Membership', 'Moves away', 'Leaves at the end of the year.'),
(32, NULL, '2003-04-08 00:00:00', '1899-12-30 17:00:00', '1899-12-30 18:45:00', '2003-04-09 09:00:00', 'Member Conference', 'Training', 'Student project', ''),
(38, NULL, '2003-05-19 00:00:00', '1899-12-30 10:00:00', '1899-12-30 12:00:00', '2003-05-19 12:10:00', 'Member Meeting', 'Fund Raising', '50th anniversary', 'Wants pipes & drums, "and none of that canned music".'),
(47, NULL, '2003-02-23 00:00:00', '1899-12-30 18:05:00', '1899-12-30 18:15:00', '2003-02-23 18:20:00', 'Chess Tournament', 'General', 'Prize', NULL),
(NULL, 2, '2003-04-02 00:00:00', '1899-12-30 09:00:00', '1899-12-30 10:45:00', '2003-04-02 10:50:00', 'Member Conference', 'Volunteering', 'Open house', 'Who brings what.'),
(NULL, 2, '2003-04-30 00:00:00', '1899-12-30 19:00:00', '1899-12-30 19:30:00', '2003-04-30 19:31:00', 'Phone Conversation', 'Event Planning', 'Keys of the hall', ''),
(NULL, 3, '2003-05-06 00:00:00', '1899-12-30 08:30:00', NULL, '2003-05-06 08:40:00', 'Phone Conversation', 'General', 'Insurance', 'Calls again.');
