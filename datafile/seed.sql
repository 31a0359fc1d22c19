-- The rows with which every data file begins.

INSERT INTO NodeInformation (NodeName, NodeActive) VALUES
    ('A', 1), ('B', 1), ('C', 1), ('D', 1), ('E', 1), ('F', 1), ('G', 1), ('H', 1), ('I', 1), ('J', 1), ('K', 1),
    ('L', 1), ('M', 1), ('N', 1), ('O', 1), ('P', 1), ('Q', 1), ('R', 1), ('S', 1), ('T', 1), ('U', 1), ('V', 1),
    ('W', 1), ('X', 1), ('Y', 1), ('Z', 1);

INSERT INTO MemberType (MemberTypeId, MemberType) VALUES
    (1, 'Regular'), (2, 'Family'), (3, 'Student'), (4, 'Senior'), (5, 'Life'), (6, 'Honorary');

-- The note window lists them behind four categories that it has built in.
INSERT INTO CategoryInfo (CategoryName, CategoryActive) VALUES
    ('Membership', -1), ('Fund Raising', -1), ('Volunteering', -1), ('Complaint', -1), ('General', -1), ('Archive', 0);

-- The administrator: change the password before others use the file.
INSERT INTO Security (UserName, UserPassword, UserFirstName, UserMiddleName, UserLastName, UserEMailAddress, UserLevel)
VALUES ('admin', 'tolmark', 'Data', '', 'Administrator', 'admin@example.org', 99);

-- The page of the record window that comes with the file. Box and label of a field have one width; two columns of
-- fields stand beside each other. While a person is edited, a change of pages passes over the first field: it is the
-- one that changes least.
INSERT INTO TabInfo (TabId, TabNam, TabDescription, TabEdit) VALUES
    (1, 'Personal Information', 'Name, address and phone numbers of the person', 0);

INSERT INTO FieldInfo (TabId, FieldDisplayOrder, FieldName, FieldDescription,
                       labelLeft, labelTop, fieldLeft, fieldTop, fieldWidth, FieldEdit) VALUES
    (1,  1, 'Title',         'Form of address',                      240,  480, 3240,  480, 2880, 0),
    (1,  2, 'First Name',    'First name',                           240,  960, 3240,  960, 2880, 0),
    (1,  3, 'Middle Name',   'Middle name or initial',               240, 1440, 3240, 1440, 2880, 0),
    (1,  4, 'Last Name',     'Last name',                            240, 1920, 3240, 1920, 2880, 0),
    (1,  5, 'Address One',   'Street and number',                    240, 2400, 3240, 2400, 2880, 0),
    (1,  6, 'Address Two',   'Second line of the address',           240, 2880, 3240, 2880, 2880, 0),
    (1,  7, 'City',          'City',                                 240, 3360, 3240, 3360, 2880, 0),
    (1,  8, 'State',         'State',                                240, 3840, 3240, 3840, 2880, 0),
    (1,  9, 'Zip',           'Zip code',                           6600,  480, 9600,  480, 2880, 0),
    (1, 10, 'Home Phone',    'Phone number at home',               6600,  960, 9600,  960, 2880, 0),
    (1, 11, 'Work Phone',    'Phone number at work',               6600, 1440, 9600, 1440, 2880, 0),
    (1, 12, 'Cell Phone',    'Cell phone number',                  6600, 1920, 9600, 1920, 2880, 0),
    (1, 13, 'EMail Address', 'E-mail address',                     6600, 2400, 9600, 2400, 2880, 0),
    (1, 14, 'Comments',      'Anything else worth knowing',        6600, 2880, 9600, 2880, 2880, 0);

-- A note that is started with no member in hand is kept under a person. This one takes the notes about nobody in
-- particular, so that the list to choose from is not empty in a new file.
INSERT INTO "Personal Information" (PersonalInformationId, "Title", "First Name", "Middle Name", "Last Name")
VALUES (1, '', 'General', '', 'Office');
