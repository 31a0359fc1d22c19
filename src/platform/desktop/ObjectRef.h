// A reference to an object that may be unset; using it unset raises error 91.
#pragma once

#include "platform/runtime/RuntimeError.h"

namespace desktop {

template <class Object> class ObjectRef
{
public:
    ObjectRef(Object *object = nullptr) : m_object(object) {}

    explicit operator bool() const { return m_object != nullptr; }
    Object *operator->() const { return &object(); }
    Object &operator*() const { return object(); }
    Object *get() const { return m_object; }

private:
    Object &object() const
    {
        if (!m_object)
            throw runtime::RuntimeError(runtime::ObjectNotSet);
        return *m_object;
    }
    Object *m_object;
};

} // namespace desktop
