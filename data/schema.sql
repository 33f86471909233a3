-- The configuration database of an installation, as the installer makes it. Raw SQL of the store's engine, run in one
-- transaction.
--
-- Statements insert by position, so the order of columns is part of the schema. Tables are not STRICT, since that would
-- lose the declared types; named checks take its place. The store reads their names: a check called type_... that fails
-- is a type mismatch, one called len_... a field too small. Numbers have 32 bits, VARCHAR(255) holds 255 characters.
-- There are no foreign keys: the console keeps the links itself and leaves orphans on purpose.

CREATE TABLE RegisteredServers (
  IDName VARCHAR(255) NOT NULL COLLATE NOCASE PRIMARY KEY CONSTRAINT len_IDName CHECK (length(IDName) <= 255),
  Domain VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Domain CHECK (length(Domain) <= 255),
  ComputerName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_ComputerName CHECK (length(ComputerName) <= 255),
  LogType INTEGER CONSTRAINT type_LogType
    CHECK (typeof(LogType) IN ('integer', 'null') AND LogType BETWEEN -2147483648 AND 2147483647),
  ScanState INTEGER CONSTRAINT type_ScanState
    CHECK (typeof(ScanState) IN ('integer', 'null') AND ScanState BETWEEN -2147483648 AND 2147483647),
  DeleteMe BOOLEAN NOT NULL DEFAULT 0 CONSTRAINT type_DeleteMe CHECK (DeleteMe IN (0, 1)),
  FirstCounter INTEGER CONSTRAINT type_FirstCounter
    CHECK (typeof(FirstCounter) IN ('integer', 'null') AND FirstCounter BETWEEN -2147483648 AND 2147483647),
  SecondCounter INTEGER CONSTRAINT type_SecondCounter
    CHECK (typeof(SecondCounter) IN ('integer', 'null') AND SecondCounter BETWEEN -2147483648 AND 2147483647)
);
CREATE INDEX RegisteredServersByDomain ON RegisteredServers (Domain, ComputerName, LogType);
CREATE INDEX RegisteredServersByComputer ON RegisteredServers (ComputerName, LogType);
CREATE INDEX RegisteredServersByLogType ON RegisteredServers (LogType, Domain);

CREATE TABLE AlarmsForLogs (
  IDName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_IDName CHECK (length(IDName) <= 255),
  Domain VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Domain CHECK (length(Domain) <= 255),
  AlarmID INTEGER CONSTRAINT type_AlarmID
    CHECK (typeof(AlarmID) IN ('integer', 'null') AND AlarmID BETWEEN -2147483648 AND 2147483647)
);
-- One column only: rows of a log then come in the order in which they were written.
CREATE INDEX AlarmsForLogsByLog ON AlarmsForLogs (IDName);
CREATE INDEX AlarmsForLogsByAlarm ON AlarmsForLogs (AlarmID);

CREATE TABLE DenyAlarmsForLogs (
  IDName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_IDName CHECK (length(IDName) <= 255),
  Domain VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Domain CHECK (length(Domain) <= 255),
  AlarmID INTEGER CONSTRAINT type_AlarmID
    CHECK (typeof(AlarmID) IN ('integer', 'null') AND AlarmID BETWEEN -2147483648 AND 2147483647)
);
CREATE INDEX DenyAlarmsForLogsByLog ON DenyAlarmsForLogs (IDName);

CREATE TABLE AlarmGroupsForLogs (
  IDName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_IDName CHECK (length(IDName) <= 255),
  Domain VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Domain CHECK (length(Domain) <= 255),
  AlarmGroupID INTEGER CONSTRAINT type_AlarmGroupID
    CHECK (typeof(AlarmGroupID) IN ('integer', 'null') AND AlarmGroupID BETWEEN -2147483648 AND 2147483647)
);
CREATE INDEX AlarmGroupsForLogsByLog ON AlarmGroupsForLogs (IDName);
CREATE INDEX AlarmGroupsForLogsByGroup ON AlarmGroupsForLogs (AlarmGroupID);

CREATE TABLE DenyAlarmGroupsForLogs (
  IDName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_IDName CHECK (length(IDName) <= 255),
  Domain VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Domain CHECK (length(Domain) <= 255),
  AlarmGroupID INTEGER CONSTRAINT type_AlarmGroupID
    CHECK (typeof(AlarmGroupID) IN ('integer', 'null') AND AlarmGroupID BETWEEN -2147483648 AND 2147483647)
);
CREATE INDEX DenyAlarmGroupsForLogsByLog ON DenyAlarmGroupsForLogs (IDName);

CREATE TABLE NotificationsForLogs (
  IDName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_IDName CHECK (length(IDName) <= 255),
  Domain VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Domain CHECK (length(Domain) <= 255),
  NotificationName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_NotificationName CHECK (length(NotificationName) <= 255)
);
CREATE INDEX NotificationsForLogsByLog ON NotificationsForLogs (IDName);
CREATE INDEX NotificationsForLogsByNotification ON NotificationsForLogs (NotificationName);

CREATE TABLE OSTypes (
  [Index] INTEGER CONSTRAINT type_Index
    CHECK (typeof([Index]) IN ('integer', 'null') AND [Index] BETWEEN -2147483648 AND 2147483647),
  OSName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_OSName CHECK (length(OSName) <= 255)
);
CREATE INDEX OSTypesByIndex ON OSTypes ([Index]);
CREATE INDEX OSTypesByName ON OSTypes (OSName);

CREATE TABLE LogTypes (
  [Index] INTEGER CONSTRAINT type_Index
    CHECK (typeof([Index]) IN ('integer', 'null') AND [Index] BETWEEN -2147483648 AND 2147483647),
  Name VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Name CHECK (length(Name) <= 255)
);
CREATE INDEX LogTypesByIndex ON LogTypes ([Index]);
CREATE INDEX LogTypesByName ON LogTypes (Name);

CREATE TABLE AlarmCategories (
  [Index] VARCHAR(255) NOT NULL COLLATE NOCASE PRIMARY KEY CONSTRAINT len_Index CHECK (length([Index]) <= 255),
  Name VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Name CHECK (length(Name) <= 255),
  OS INTEGER CONSTRAINT type_OS CHECK (typeof(OS) IN ('integer', 'null') AND OS BETWEEN -2147483648 AND 2147483647),
  LogType INTEGER CONSTRAINT type_LogType
    CHECK (typeof(LogType) IN ('integer', 'null') AND LogType BETWEEN -2147483648 AND 2147483647)
);
CREATE INDEX AlarmCategoriesByPlace ON AlarmCategories (OS, LogType, Name);

-- Numbers are never given twice: a new alarm or bundle would inherit the rows that a deleted one left behind.
CREATE TABLE Alarms (
  AlarmID INTEGER PRIMARY KEY AUTOINCREMENT CONSTRAINT type_AlarmID CHECK (AlarmID BETWEEN -2147483648 AND 2147483647),
  Name VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Name CHECK (length(Name) <= 255),
  Description LONGTEXT COLLATE NOCASE,
  AlarmCategory VARCHAR(255) COLLATE NOCASE CONSTRAINT len_AlarmCategory CHECK (length(AlarmCategory) <= 255),
  TypeMask INTEGER CONSTRAINT type_TypeMask
    CHECK (typeof(TypeMask) IN ('integer', 'null') AND TypeMask BETWEEN -2147483648 AND 2147483647),
  Source VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Source CHECK (length(Source) <= 255),
  Category VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Category CHECK (length(Category) <= 255),
  User VARCHAR(255) COLLATE NOCASE CONSTRAINT len_User CHECK (length(User) <= 255),
  Computer VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Computer CHECK (length(Computer) <= 255),
  EventID INTEGER CONSTRAINT type_EventID
    CHECK (typeof(EventID) IN ('integer', 'null') AND EventID BETWEEN -2147483648 AND 2147483647),
  EventDescription LONGTEXT COLLATE NOCASE,
  MatchEntireDescription BOOLEAN NOT NULL DEFAULT 0
    CONSTRAINT type_MatchEntireDescription CHECK (MatchEntireDescription IN (0, 1)),
  ThresholdCount INTEGER CONSTRAINT type_ThresholdCount
    CHECK (typeof(ThresholdCount) IN ('integer', 'null') AND ThresholdCount BETWEEN -2147483648 AND 2147483647),
  ThresholdTimeout INTEGER CONSTRAINT type_ThresholdTimeout
    CHECK (typeof(ThresholdTimeout) IN ('integer', 'null') AND ThresholdTimeout BETWEEN -2147483648 AND 2147483647),
  NotificationName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_NotificationName CHECK (length(NotificationName) <= 255)
);
-- One column only: of several alarms of one name the oldest comes first.
CREATE INDEX AlarmsByName ON Alarms (Name);
CREATE INDEX AlarmsByCategory ON Alarms (AlarmCategory, Name);
CREATE INDEX AlarmsByNotification ON Alarms (NotificationName);

CREATE TABLE AlarmGroups (
  [Index] INTEGER PRIMARY KEY AUTOINCREMENT CONSTRAINT type_Index CHECK ([Index] BETWEEN -2147483648 AND 2147483647),
  Name VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Name CHECK (length(Name) <= 255)
);
CREATE INDEX AlarmGroupsByName ON AlarmGroups (Name);

CREATE TABLE AlarmsInGroups (
  AlarmID INTEGER CONSTRAINT type_AlarmID
    CHECK (typeof(AlarmID) IN ('integer', 'null') AND AlarmID BETWEEN -2147483648 AND 2147483647),
  AlarmGroupID INTEGER CONSTRAINT type_AlarmGroupID
    CHECK (typeof(AlarmGroupID) IN ('integer', 'null') AND AlarmGroupID BETWEEN -2147483648 AND 2147483647)
);
CREATE INDEX AlarmsInGroupsByGroup ON AlarmsInGroups (AlarmGroupID);
CREATE INDEX AlarmsInGroupsByAlarm ON AlarmsInGroups (AlarmID);

CREATE TABLE Notifications (
  Name VARCHAR(255) NOT NULL COLLATE NOCASE PRIMARY KEY CONSTRAINT len_Name CHECK (length(Name) <= 255),
  TypesSupported INTEGER CONSTRAINT type_TypesSupported
    CHECK (typeof(TypesSupported) IN ('integer', 'null') AND TypesSupported BETWEEN -2147483648 AND 2147483647),
  EmailRecipient VARCHAR(255) COLLATE NOCASE CONSTRAINT len_EmailRecipient CHECK (length(EmailRecipient) <= 255),
  PhoneNumber VARCHAR(255) COLLATE NOCASE CONSTRAINT len_PhoneNumber CHECK (length(PhoneNumber) <= 255),
  PagerString VARCHAR(255) COLLATE NOCASE CONSTRAINT len_PagerString CHECK (length(PagerString) <= 255),
  NetworkName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_NetworkName CHECK (length(NetworkName) <= 255),
  DataConnectionString LONGTEXT COLLATE NOCASE,
  TableName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_TableName CHECK (length(TableName) <= 255),
  SyslogServer VARCHAR(255) COLLATE NOCASE CONSTRAINT len_SyslogServer CHECK (length(SyslogServer) <= 255),
  SyslogUDPPort INTEGER CONSTRAINT type_SyslogUDPPort
    CHECK (typeof(SyslogUDPPort) IN ('integer', 'null') AND SyslogUDPPort BETWEEN -2147483648 AND 2147483647),
  SyslogPriority INTEGER CONSTRAINT type_SyslogPriority
    CHECK (typeof(SyslogPriority) IN ('integer', 'null') AND SyslogPriority BETWEEN -2147483648 AND 2147483647)
);

CREATE TABLE CustomNotifications (
  Name VARCHAR(255) NOT NULL COLLATE NOCASE PRIMARY KEY CONSTRAINT len_Name CHECK (length(Name) <= 255),
  Subject VARCHAR(255) COLLATE NOCASE CONSTRAINT len_Subject CHECK (length(Subject) <= 255),
  MessageBody LONGTEXT COLLATE NOCASE
);

CREATE TABLE CustomNotsForNots (
  NotificationName VARCHAR(255) COLLATE NOCASE CONSTRAINT len_NotificationName CHECK (length(NotificationName) <= 255),
  CustomNotificationName VARCHAR(255) COLLATE NOCASE
    CONSTRAINT len_CustomNotificationName CHECK (length(CustomNotificationName) <= 255)
);
CREATE INDEX CustomNotsForNotsByNotification ON CustomNotsForNots (NotificationName);
CREATE INDEX CustomNotsForNotsByTemplate ON CustomNotsForNots (CustomNotificationName);

CREATE TABLE SyslogDevices (
  DeviceName VARCHAR(255) NOT NULL COLLATE NOCASE PRIMARY KEY CONSTRAINT len_DeviceName
    CHECK (length(DeviceName) <= 255),
  DeviceIP VARCHAR(255) COLLATE NOCASE CONSTRAINT len_DeviceIP CHECK (length(DeviceIP) <= 255)
);
