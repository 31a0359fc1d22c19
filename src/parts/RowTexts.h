// Shows a field of a row in a control. A Null leaves the control as it was.
#pragma once

#include "platform/data/Recordset.h"
#include "platform/runtime/Conversion.h"

#include <utility>

// Gives the control (a text box or a list) the field's text.
template <class Control> void putText(Control &control, const data::Field &field)
{
    if (runtime::Value value = field.Value(); !value.isNull())
        control.setText(runtime::toText(std::move(value)));
}
