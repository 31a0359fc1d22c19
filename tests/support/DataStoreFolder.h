// A data folder that is the application's own while it stands, as the windows expect it.
#pragma once

#include "platform/runtime/Application.h"
#include "support/DataFolder.h"

class DataStoreFolder : public DataFolder
{
public:
    explicit DataStoreFolder(Content content = Content::Sample) : DataFolder(content)
    {
        runtime::App::setPath(folder());
        QDir(folder()).mkpath(QStringLiteral("temp/Search"));
    }
    ~DataStoreFolder() { runtime::App::setPath({}); }
};
