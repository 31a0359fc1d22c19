-- The tables of Tolmark.mdb. Names are those that the windows' statements carry, odd spellings included.
--
-- The declared type says what a column holds and how the program reads it back:
--   INTEGER PRIMARY KEY AUTOINCREMENT  a number that the file gives out and never gives out twice
--   INTEGER, SMALLINT                  whole numbers of 32 and 16 bits
--   BOOLEAN                            Yes is -1, No is 0
--   CURRENCY                           an amount, exact to four decimals
--   DATETIME                           text "yyyy-mm-dd hh:mm:ss", always 19 characters, on the workstation's clock
--   TEXT, LONGTEXT                     text; LONGTEXT is the memo
--   DOUBLE, BLOB                       floating-point number, bytes
-- Every text has the collation NOCASE: an index on it then serves a LIKE that begins with letters, and any SQLite tool can
-- read and write the file, which a collation of our own would prevent.
-- A binary column is the last of its table, since SQLite reads past a large value to reach the columns behind it.

PRAGMA application_id = 1416392043; -- "Tlmk"
PRAGMA user_version = 2; -- a change below: the next number, and its step in Upgrade.cpp

-- Users and the groups of the explorers ------------------------------------------------------------------------------

CREATE TABLE Security (
    SecurityId INTEGER PRIMARY KEY AUTOINCREMENT,
    UserName TEXT COLLATE NOCASE,
    UserPassword TEXT COLLATE NOCASE,
    UserFirstName TEXT COLLATE NOCASE,
    UserMiddleName TEXT COLLATE NOCASE,
    UserLastName TEXT COLLATE NOCASE,
    UserEMailAddress TEXT COLLATE NOCASE,
    UserLevel SMALLINT DEFAULT 0 -- 99 and more: the administrator's view; no window writes it
);
CREATE INDEX Security_UserLastName ON Security (UserLastName);

-- The explorers read it without ORDER BY and so show the groups in the order in which they were added.
CREATE TABLE NodeInformation (
    NodeName TEXT COLLATE NOCASE,
    NodeActive INTEGER DEFAULT 1
);

-- Members ------------------------------------------------------------------------------------------------------------

CREATE TABLE MemberInformation (
    MemberId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberTypeId INTEGER,
    FirstName TEXT COLLATE NOCASE,
    MiddleName TEXT COLLATE NOCASE,
    LastName TEXT COLLATE NOCASE,
    AddressOne TEXT COLLATE NOCASE,
    AddressTwo TEXT COLLATE NOCASE,
    City TEXT COLLATE NOCASE,
    State TEXT COLLATE NOCASE,
    Zip TEXT COLLATE NOCASE,
    HomePhone TEXT COLLATE NOCASE,
    CellPhone TEXT COLLATE NOCASE,
    EMailAddress TEXT COLLATE NOCASE,
    Active BOOLEAN DEFAULT -1
);
-- With Active in it, the index alone counts the members of a group.
CREATE INDEX MemberInformation_LastName ON MemberInformation (LastName, Active);

CREATE TABLE MemberType (
    MemberTypeId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberType TEXT COLLATE NOCASE
);

CREATE TABLE EmployerInformation (
    MemberId INTEGER,
    Name TEXT COLLATE NOCASE,
    AddressOne TEXT COLLATE NOCASE,
    AddressTwo TEXT COLLATE NOCASE,
    City TEXT COLLATE NOCASE,
    State TEXT COLLATE NOCASE,
    Zip TEXT COLLATE NOCASE,
    PhoneNumber TEXT COLLATE NOCASE,
    Extension TEXT COLLATE NOCASE,
    EMailAddress TEXT COLLATE NOCASE,
    WebAddress TEXT COLLATE NOCASE
);
CREATE INDEX EmployerInformation_MemberId ON EmployerInformation (MemberId);

CREATE TABLE MemberInterest (
    MemberInterestId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberId INTEGER,
    Interest TEXT COLLATE NOCASE,
    InterestDescription TEXT COLLATE NOCASE
);
CREATE INDEX MemberInterest_MemberId ON MemberInterest (MemberId);

CREATE TABLE Contributions (
    ContributionId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberId INTEGER,
    ContributionDate DATETIME DEFAULT (strftime('%Y-%m-%d 00:00:00', 'now', 'localtime')),
    ContributionAmount CURRENCY,
    ContributionNotes LONGTEXT COLLATE NOCASE
);
CREATE INDEX Contributions_MemberId ON Contributions (MemberId);

CREATE TABLE Attachments (
    AttachmentsId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberId INTEGER,
    PersonalInformationId INTEGER,
    AttachmentsName TEXT COLLATE NOCASE,
    AttachmentVersion SMALLINT,
    AttachmentsDate DATETIME DEFAULT (strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime')),
    AttachmentDescription TEXT COLLATE NOCASE,
    AttachmentExtension TEXT COLLATE NOCASE,
    Attachments BLOB -- the file's bytes and one zero byte
);
CREATE INDEX Attachments_MemberId ON Attachments (MemberId);
CREATE INDEX Attachments_PersonalInformationId ON Attachments (PersonalInformationId);
CREATE INDEX Attachments_AttachmentsName ON Attachments (AttachmentsName, AttachmentVersion);
CREATE INDEX Attachments_AttachmentExtension ON Attachments (AttachmentExtension);

-- Events and notes ---------------------------------------------------------------------------------------------------

-- Start and end are texts, kept as they were typed.
CREATE TABLE EventInformation (
    EventIdentification INTEGER PRIMARY KEY AUTOINCREMENT,
    EventDate DATETIME DEFAULT (strftime('%Y-%m-%d 00:00:00', 'now', 'localtime')),
    EventName TEXT COLLATE NOCASE,
    EventDescription TEXT COLLATE NOCASE,
    EventStartDate TEXT COLLATE NOCASE,
    EventEndDate TEXT COLLATE NOCASE,
    EventStartTime TEXT COLLATE NOCASE,
    EventEndTime TEXT COLLATE NOCASE,
    EventStartTimeAmPm TEXT COLLATE NOCASE,
    EventEndTimeAmPm TEXT COLLATE NOCASE,
    Active BOOLEAN DEFAULT -1
);
CREATE INDEX EventInformation_EventName ON EventInformation (EventName, Active);

CREATE TABLE EventMemberInfo (
    EventMemberInfoId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberId INTEGER,
    EventName TEXT COLLATE NOCASE,
    EventActualStartTime TEXT COLLATE NOCASE,
    EventActualEndTime TEXT COLLATE NOCASE,
    EventActualDate TEXT COLLATE NOCASE,
    EventComments LONGTEXT COLLATE NOCASE
);
CREATE INDEX EventMemberInfo_MemberId ON EventMemberInfo (MemberId);

-- Start and end are dates rather than texts, so that an invalid one is refused when the note is saved; as a text it would
-- make every later reading of the note fail.
CREATE TABLE MeetingInfo (
    MeetingId INTEGER PRIMARY KEY AUTOINCREMENT,
    MemberId INTEGER,
    PersonalInformationId INTEGER,
    MeetingDate DATETIME,
    MeetingStartTime DATETIME,
    MeetingEndTime DATETIME,
    MeetingEnteredDate DATETIME DEFAULT (strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime')),
    MeetingType TEXT COLLATE NOCASE,
    MeetingCatagory TEXT COLLATE NOCASE,
    MeetingSubject TEXT COLLATE NOCASE,
    MeetingNotes LONGTEXT COLLATE NOCASE
);
CREATE INDEX MeetingInfo_MemberId ON MeetingInfo (MemberId);
CREATE INDEX MeetingInfo_PersonalInformationId ON MeetingInfo (PersonalInformationId);

CREATE TABLE CategoryInfo (
    CategoryName TEXT COLLATE NOCASE,
    CategoryActive BOOLEAN DEFAULT -1
);

-- Document library ---------------------------------------------------------------------------------------------------

-- One row for each node of the tree; ObjectIndex is its place in the tree when saved. Every save adds a set of rows.
CREATE TABLE ObjectTbl (
    ObjectIndex SMALLINT,
    ObjectParentIndex SMALLINT,
    ObjectText TEXT COLLATE NOCASE,
    ObjectType TEXT COLLATE NOCASE
);

CREATE TABLE Resources (
    DocumentId INTEGER PRIMARY KEY AUTOINCREMENT,
    ObjectIndex INTEGER,
    DocumentName TEXT COLLATE NOCASE,
    DocumentDate DATETIME DEFAULT (strftime('%Y-%m-%d %H:%M:%S', 'now', 'localtime')),
    DocuemntVersion INTEGER,
    Document BLOB -- the file's bytes and one zero byte
);
-- It holds every column that a list of documents shows, so that the list is read from the index alone and never from the
-- pages that hold the files.
CREATE INDEX Resources_ObjectIndex
    ON Resources (ObjectIndex, DocumentId, DocumentName, DocumentDate, DocuemntVersion);

CREATE TABLE ReferenceInfo (
    PersonalInformationId INTEGER,
    DocumentId INTEGER
);
CREATE INDEX ReferenceInfo_PersonalInformationId ON ReferenceInfo (PersonalInformationId);

-- Forms --------------------------------------------------------------------------------------------------------------

-- Rows that the designer adds take the default 1 and belong to it; pages that come with the file have 0 there.
CREATE TABLE TabInfo (
    TabId INTEGER PRIMARY KEY AUTOINCREMENT,
    TabNam TEXT COLLATE NOCASE,
    TabDescription TEXT COLLATE NOCASE,
    TabEdit INTEGER DEFAULT 1
);

-- Places and widths are twips.
CREATE TABLE FieldInfo (
    TabId INTEGER,
    FieldName TEXT COLLATE NOCASE,
    FieldDescription TEXT COLLATE NOCASE,
    FieldDisplayOrder SMALLINT,
    fieldLeft DOUBLE,
    fieldTop DOUBLE,
    labelLeft DOUBLE,
    labelTop DOUBLE,
    fieldWidth DOUBLE,
    FieldEdit INTEGER DEFAULT 1
);
CREATE INDEX FieldInfo_TabId ON FieldInfo (TabId);

-- The record window saves a new person in two steps: it adds the person, and then for each page a row with the person's
-- number. For the page "Personal Information" that is the same table, so the second row has a number that is taken:
-- ON CONFLICT IGNORE drops it without an error. The further columns are edited in text boxes and are therefore texts.
CREATE TABLE "Personal Information" (
    PersonalInformationId INTEGER PRIMARY KEY ON CONFLICT IGNORE AUTOINCREMENT,
    Active INTEGER DEFAULT 1,
    "Title" TEXT COLLATE NOCASE,
    "First Name" TEXT COLLATE NOCASE,
    "Middle Name" TEXT COLLATE NOCASE,
    "Last Name" TEXT COLLATE NOCASE,
    "Address One" TEXT COLLATE NOCASE,
    "Address Two" TEXT COLLATE NOCASE,
    "City" TEXT COLLATE NOCASE,
    "State" TEXT COLLATE NOCASE,
    "Zip" TEXT COLLATE NOCASE,
    "Home Phone" TEXT COLLATE NOCASE,
    "Work Phone" TEXT COLLATE NOCASE,
    "Cell Phone" TEXT COLLATE NOCASE,
    "EMail Address" TEXT COLLATE NOCASE,
    "Comments" TEXT COLLATE NOCASE
);
