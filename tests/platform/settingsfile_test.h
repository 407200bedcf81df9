// SPDX-License-Identifier: MIT
#pragma once

#include "platform/settingsfile.h"
#include "support/platform_test.h"

#include <QDir>
#include <QFile>

inline const QString startup = QStringLiteral("Startup");

class SettingsOnDisk : public PlatformTest {
protected:
    QString get(const char* key, const char* standard = "none") const {
        return GetSetting(startup, QLatin1String(key), QLatin1String(standard));
    }

    QString configFolder() const { return m_folder.filePath(QStringLiteral("config")); }

    /// Continues with a copy of the file elsewhere, so that it is read anew.
    void reopen() {
        const QByteArray bytes = readFile(settingsPath());
        const QString folder = m_folder.filePath(QStringLiteral("copy"));
        writeFile(folder + QStringLiteral("/Orvalen Years Calendar/settings.ini"), bytes);
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
        EXPECT_TRUE(LoadSettings());
    }

    /// Loads a file of these lines.
    void load(const QByteArray& lines) {
        writeFile(settingsPath(), lines);
        ASSERT_TRUE(LoadSettings());
    }

    static void save(const char* key, const char* value) {
        SaveSetting(startup, QLatin1String(key), QString::fromUtf8(value));
    }

    QStringList filesBeside() const {
        return QFileInfo(settingsPath())
            .dir()
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    }
};
