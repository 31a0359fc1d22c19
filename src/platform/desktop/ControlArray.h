// Controls of one name, told apart by an index. Element i is called Name(i); an index without element raises error 340.
//
// The window makes the elements of its design by add. Further ones come and go at run time: they are loaded as copies
// of element 0 and unloaded again.
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
    // Makes a hidden element that has the parent, the place and the read-only state of element 0 and is otherwise like
    // any new control. Error 360 for an index that has an element already.
    ControlType *Load(int index)
    {
        if (m_elements.contains(index))
            throw runtime::RuntimeError(runtime::AlreadyLoaded);
        const ControlType *first = (*this)(0);
        ControlType *element = add(index, first->parentWidget());
        element->setVisible(false);
        element->Move(first->Left(), first->Top(), first->Width(), first->Height());
        if constexpr (requires { element->setReadOnly(first->isReadOnly()); })
            element->setReadOnly(first->isReadOnly());
        return element;
    }
    // Destroys a loaded element. Error 362 for element 0, which belongs to the design.
    void Unload(int index)
    {
        const ControlType *element = (*this)(index);
        if (index == 0)
            throw runtime::RuntimeError(runtime::CannotUnload);
        m_elements.erase(index);
        delete element;
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
