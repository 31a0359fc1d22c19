// For its lifetime the program acts without the rights of the administrator, who may read and write every file, so
// that refusals by the system can be met. Where it may not step down, isInEffect() is false: skip the test then.
#pragma once

#include <sys/types.h>
#include <unistd.h>

class OrdinaryUser
{
public:
    OrdinaryUser() : m_former(geteuid())
    {
        constexpr uid_t nobody = 65534;
        m_inEffect = m_former != 0 || seteuid(nobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_former == 0 && seteuid(m_former) != 0)
            _exit(1); // nothing after it could be trusted
    }
    OrdinaryUser(const OrdinaryUser &) = delete;
    OrdinaryUser &operator=(const OrdinaryUser &) = delete;

    bool isInEffect() const { return m_inEffect; }

private:
    uid_t m_former;
    bool m_inEffect = false;
};
