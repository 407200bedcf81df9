// SPDX-License-Identifier: MIT
#include "platform/settingsstore.h"

#include "platform/program.h"

#include <QDir>
#include <QMap>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <memory>

namespace {

QString currentPath() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + u'/' + ProgramTitle() + QStringLiteral("/settings.ini");
}

std::unique_ptr<QSettings> settings;
QMap<QString, QString> unsaved; // by section and key

// One object for the whole run, opened anew if the configuration directory has
// become another, and after a failure, since an object keeps that in mind.
QSettings& store() {
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
    unsaved.insert(section + u'/' + key, value);
    store().setValue(section + u'/' + key, value);
}

bool FlushSettings() {
    store().sync();
    if (store().status() != QSettings::AccessError) {
        unsaved.clear();
        return true;
    }
    settings.reset();
    for (auto entry = unsaved.cbegin(); entry != unsaved.cend(); ++entry)
        store().setValue(entry.key(), entry.value());
    return false;
}

QString SettingsFile() {
    return QDir::toNativeSeparators(store().fileName());
}
