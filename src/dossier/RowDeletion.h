// How every list of the dossier deletes the row of its selected line: a question, the statement, the confirmation and
// the list's refresh.
#pragma once

#include "dossier/Dossier.h"
#include "platform/desktop/ListView.h"

#include <QStringView>

#include <functional>

struct RowDeletion
{
    enum class Order { MessageThenRefresh, RefreshThenMessage };

    QStringView warning;
    QStringView statement; // up to the key; the key and a closing parenthesis are added
    QStringView confirmation;
    Order order;
};

// Nothing happens unless the user says Yes. Error 91 without a selected line; a line without a key breaks the
// statement.
void deleteSelectedRow(Dossier &dossier, const desktop::ListView &list, const RowDeletion &deletion,
                       const std::function<void()> &refresh);
