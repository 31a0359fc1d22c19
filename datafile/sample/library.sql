-- Users, the document library's tree, persons of the record window and a page of the designer's.
-- The documents themselves stand in Sample.cpp, beside the files that they hold.

INSERT INTO Security (UserName, UserPassword, UserFirstName, UserMiddleName, UserLastName, UserEMailAddress, UserLevel)
VALUES
    ('ARAdams', '41dA7', 'Abigail', 'Rose', 'Adams', 'abigail.adams@example.org', 0),
    ('MDonnelly', '8o203', 'Margaret', '', 'Donnelly', 'mdonnelly@example.net', 0),
    ('WHHollis', '1l99s', 'William', 'Henry', 'Hollis', 'will.hollis@example.org', 99),
    ('RHansen', '5n12', 'Ruth', NULL, 'Hansen', NULL, 0);

-- A node's index is its place in the saved tree: the root is 1, and parents stand before their children.
INSERT INTO ObjectTbl (ObjectIndex, ObjectParentIndex, ObjectText, ObjectType) VALUES
    ( 1, 0, 'Main Library', 'Root'),
    ( 2, 1, 'Administration', 'Library'),
    ( 3, 2, 'Bylaws', 'Catagory'),
    ( 4, 2, 'Forms', 'Catagory'),
    ( 5, 2, 'Minutes', 'Catagory'),
    ( 6, 5, '2002', 'Catagory'),
    ( 7, 5, '2003', 'Catagory'),
    ( 8, 1, 'Events', 'Library'),
    ( 9, 8, 'Annual Dinner', 'Catagory'),
    (10, 8, 'Regatta', 'Catagory'),
    (11, 1, 'Newsletter', 'Library'),
    (12, 1, 'Empty shelf', 'Library');

INSERT INTO "Personal Information" (PersonalInformationId, Active, "Title", "First Name", "Middle Name", "Last Name",
    "Address One", "Address Two", "City", "State", "Zip", "Home Phone", "Work Phone", "Cell Phone", "EMail Address",
    "Comments") VALUES
    (2, 1, 'Ms.', 'Helen', 'B.', 'Ashworth', '12 Garden Street', '', 'Portland', 'Maine', '04102', '207-555-0170', '', '207-555-0171', 'helen.ashworth@example.org', 'Coordinates the volunteers'),
    (3, 1, 'Mr.', 'Émile', '', 'Beaumont', '4 Station Road', 'Box 12', 'Bangor', 'Maine', '04401', '', '207-555-0172', '', 'emile@example.net', ''),
    (4, 1, 'Dr.', 'Grace', 'Eun-ji', 'Kim', '99 Summit Avenue', NULL, 'Lewiston', 'Maine', '04240', NULL, '207-555-0173', NULL, NULL, NULL),
    (5, 1, '', 'Shane', '', 'Oakes', '', '', '', '', '', '', '', '', '', ''),
    (6, 0, 'Mrs.', 'Wanda', 'K.', 'Tillman', '1 Ferry Road', '', 'Augusta', 'Maine', '04330', '207-555-0174', '', '', '', 'Left in 2002');

-- A page with its fields as the designer saves them, and a table like the one that the designer generates.
INSERT INTO TabInfo (TabId, TabNam, TabDescription) VALUES (2, 'Volunteer Profile', 'What a volunteer likes to do');

INSERT INTO FieldInfo (TabId, FieldDisplayOrder, FieldName, FieldDescription,
                       labelLeft, labelTop, fieldLeft, fieldTop, fieldWidth) VALUES
    (2, 20, 'Skills',       'What the person can do',  200,  400, 3200,  400, 2800),
    (2, 21, 'Availability', 'Days and times',          200, 1000, 3200, 1000, 2800),
    (2, 22, 'Driver',       'Can drive others',        200, 1600, 3200, 1600, 2800),
    (2, 23, 'Since',        'First year of service',   200, 2200, 3200, 2200, 2800);

CREATE TABLE "Volunteer Profile" (
    VolunteerProfileId INTEGER PRIMARY KEY AUTOINCREMENT,
    PersonalInformationId INTEGER,
    VolunteerProfileDate DATETIME DEFAULT (strftime('%Y-%m-%d 00:00:00', 'now', 'localtime')),
    "Skills" TEXT COLLATE NOCASE,
    "Availability" TEXT COLLATE NOCASE,
    "Driver" TEXT COLLATE NOCASE,
    "Since" TEXT COLLATE NOCASE
);

INSERT INTO "Volunteer Profile" (PersonalInformationId, VolunteerProfileDate, "Skills", "Availability", "Driver",
                                 "Since") VALUES
    (1, '2003-01-06 00:00:00', NULL, NULL, NULL, NULL),
    (2, '2003-01-06 00:00:00', 'Organising; first aid', 'Evenings', 'Yes', '1994'),
    (3, '2003-01-06 00:00:00', 'French, cooking', 'Weekends', 'No', '2001'),
    (4, '2003-02-10 00:00:00', 'Medicine', '', NULL, '2002'),
    (5, '2003-03-24 00:00:00', '', '', '', ''),
    (6, '1999-09-13 00:00:00', 'Typing', 'Mornings', '', '1999');
