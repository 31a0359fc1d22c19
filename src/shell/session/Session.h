// What belongs to the running program and not to one window: who is logged in, and the two flags of the main window's
// resizing. The main window offers the user's properties under its own name; the windows below it use this object.
#pragma once

#include "platform/runtime/Value.h"

#include <QString>

struct Session
{
    static Session &current();

    QString UFirstName;
    QString UMiddleName;
    QString ULastName;
    QString UserId;
    qint16 UserLevel = 0; // from 99 on, a member explorer that the menu opens shows the users
    QString ActiveRecordId;

    // A first resize has gone by, so that later ones may scale.
    bool ResizeReady = false;
    // While it is set, scaling would also move the main window. Nothing sets it.
    bool ResizePending = false;

    // Null, and what equals the number 1, become one blank: a middle name is usually not there.
    void setMiddleName(const runtime::Value &name);
};
