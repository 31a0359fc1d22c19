#include "platform/runtime/ProviderError.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace provider {

namespace {

struct ObjectErrorText
{
    int number;
    const char *text;
};

constexpr std::array objectErrorTexts{
    ObjectErrorText{WrongArguments, "Arguments are of the wrong type, are out of acceptable range, or are in conflict "
                                    "with one another."},
    ObjectErrorText{NoCurrentRecord, "Either BOF or EOF is True, or the current record has been deleted. Requested "
                                     "operation requires a current record."},
    ObjectErrorText{NotAllowedInContext, "Operation is not allowed in this context."},
    ObjectErrorText{NotUpdatable, "Current Recordset does not support updating. This may be a limitation of the "
                                  "provider, or of the selected locktype."},
    ObjectErrorText{NoSuchItem,
                    "Item cannot be found in the collection corresponding to the requested name or ordinal."},
    ObjectErrorText{AlreadyInCollection, "Object is already in collection. Cannot append."},
    ObjectErrorText{ObjectClosed, "Operation is not allowed when the object is closed."},
    ObjectErrorText{ObjectOpen, "Operation is not allowed when the object is open."},
    ObjectErrorText{NoProvider, "Provider cannot be found. It may not be properly installed."},
    ObjectErrorText{NoConnection, "The connection cannot be used to perform this operation. It is either closed or "
                                  "invalid in this context."},
};

} // namespace

QString source()
{
    return u"Microsoft JET Database Engine"_s;
}

runtime::RuntimeError error(int number, const QString &text)
{
    return {number, text, source()};
}

runtime::RuntimeError requiredField(const QString &field)
{
    return error(Unspecified,
                 u"The field '%1' cannot contain a Null value because the Required property for this field "
                 u"is set to True.  Enter a value in this field."_s.arg(field));
}

runtime::RuntimeError objectError(int number, const char *source)
{
    QString text = runtime::errorText(number);
    for (const ObjectErrorText &entry : objectErrorTexts) {
        if (entry.number == number)
            text = QString::fromLatin1(entry.text);
    }
    return {number, text, QString::fromLatin1(source)};
}

} // namespace provider
