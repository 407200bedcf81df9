// SPDX-License-Identifier: MIT
#pragma once

#include "support/platform_test.h"

#include <QLineEdit>

class Buttons : public PlatformTest {
protected:
    Buttons() : other(new QLineEdit(&window)) { other->move(100, 0); }

    void show() {
        window.resize(300, 200);
        showWithFocus(window, *other);
    }

    QWidget window;
    QLineEdit* other;
};
