// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

QIcon Picture(const QString& name) {
    return QIcon(QStringLiteral(":/%1.svg").arg(name));
}
