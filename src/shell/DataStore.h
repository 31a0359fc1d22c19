// Where the data store is. The string is composed anew at each use and nothing keeps it.
#pragma once

#include <QString>

// Names Tolmark.mdb beside the executable.
QString dataStoreConnectionString();
