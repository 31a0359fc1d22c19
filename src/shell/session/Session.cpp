#include "shell/session/Session.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/NumberText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool equalsOne(const runtime::Value &value)
{
    if (!value.is<QString>())
        return runtime::toDouble(value) == 1.0;
    return runtime::parseDouble(value.get<QString>()) == 1.0;
}

} // namespace

Session &Session::current()
{
    static Session session;
    return session;
}

void Session::setMiddleName(const runtime::Value &name)
{
    UMiddleName = name.isNull() || equalsOne(name) ? u" "_s : runtime::toText(name);
}
