// SPDX-License-Identifier: MIT
#include "platform/settingsstore.h"

#include "platform/program.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <memory>

namespace {

QString currentPath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + u'/' + ProgramTitle() + QStringLiteral("/settings.ini");
}

// One object for the whole run, opened anew only if the configuration directory
// has become another.
QSettings& store() {
    static std::unique_ptr<QSettings> settings;
    const QString path = currentPath();
    if (!settings || settings->fileName() != path)
        settings = std::make_unique<QSettings>(path, QSettings::IniFormat);
    return *settings;
}

} // namespace

QString GetSetting(const QString& section, const QString& key, const QString& standard) {
    const QString name = section + u'/' + key;
    if (!store().contains(name))
        return standard;
    // A text with an unquoted comma is read as a list.
    return store().value(name).toStringList().join(u',');
}

void SaveSetting(const QString& section, const QString& key, const QString& value) {
    store().setValue(section + u'/' + key, value);
}

bool FlushSettings() {
    store().sync();
    return store().status() != QSettings::AccessError;
}

QString SettingsFile() {
    return QDir::toNativeSeparators(store().fileName());
}
