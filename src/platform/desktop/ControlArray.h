// Controls of one name, told apart by an index. Element i is called Name(i); an index without element raises error 340.
#pragma once

#include "platform/runtime/RuntimeError.h"

#include <QString>
#include <QWidget>

#include <map>
#include <utility>

namespace desktop {

template <class ControlType> class ControlArray
{
public:
    explicit ControlArray(QString name) : m_name(std::move(name)) {}

    // The element is owned by its parent widget.
    ControlType *add(int index, QWidget *parent)
    {
        auto *element = new ControlType(parent, QStringLiteral("%1(%2)").arg(m_name).arg(index));
        m_elements.emplace(index, element);
        return element;
    }
    ControlType *operator()(int index) const
    {
        const auto found = m_elements.find(index);
        if (found == m_elements.end())
            throw runtime::RuntimeError(runtime::NoSuchControlElement,
                                        QStringLiteral("Control array element '%1' doesn't exist").arg(index));
        return found->second;
    }
    int Count() const { return int(m_elements.size()); }

private:
    QString m_name;
    std::map<int, ControlType *> m_elements;
};

} // namespace desktop
