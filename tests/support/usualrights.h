// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

/// Takes the rights of the superuser, who may read everything, from this process.
class UsualRights {
public:
    UsualRights() { become(m_former == 0 ? nobody : m_former); }
    ~UsualRights() { become(m_former); }
    UsualRights(const UsualRights&) = delete;
    UsualRights& operator=(const UsualRights&) = delete;

private:
    void become(uid_t user) const { EXPECT_EQ(setresuid(user, user, m_former), 0); }

    static constexpr uid_t nobody = 65534;
    const uid_t m_former = geteuid();
};
