// SPDX-License-Identifier: MIT
#include "platform/settingsstore.h"

#include "platform/folderlock.h"
#include "platform/initext.h"
#include "platform/program.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <unistd.h>
#include <vector>

namespace {

constexpr qint64 largestFile = 1 << 20; // bytes

struct Setting {
    QString section;
    QString key;
    QString value;
};

IniText settings;             // as loaded, with what was saved since
std::vector<Setting> unsaved; // in the order in which they were saved

// A relative folder is none, as the rules for base directories say.
QString configurationFolder() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return QDir::isAbsolutePath(folder) ? folder : QDir::homePath() + QStringLiteral("/.config");
}

QString settingsFolder() {
    return configurationFolder() + u'/' + ProgramTitle();
}

QString settingsPath() {
    return settingsFolder() + QStringLiteral("/settings.ini");
}

// Empty when there is no file, nothing when it cannot be read.
std::optional<QByteArray> readFile() {
    QFile file(settingsPath());
    const QFileInfo info(file);
    if (!info.exists())
        return QByteArray();
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(largestFile);
    return file.error() == QFile::NoError ? std::optional(bytes) : std::nullopt;
}

// The bytes are known to be on disk before they take the old file's place.
bool writeFile(const QByteArray& bytes) {
    QSaveFile file(settingsPath());
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush() &&
           fsync(file.handle()) == 0 && file.commit();
}

void setAll(IniText& text, const std::vector<Setting>& values) {
    for (const Setting& setting : values)
        text.SetValue(setting.section, setting.key, setting.value);
}

} // namespace

bool LoadSettings() {
    const auto bytes = readFile();
    settings = IniText(bytes.value_or(QByteArray()));
    unsaved.clear();
    return bytes.has_value();
}

QString GetSetting(const QString& section, const QString& key, const QString& standard) {
    return settings.Value(section, key).value_or(standard);
}

void SaveSetting(const QString& section, const QString& key, const QString& value) {
    unsaved.push_back({section, key, value});
    settings.SetValue(section, key, value);
}

bool FlushSettings() {
    if (unsaved.empty())
        return true;
    if (!QDir().mkpath(settingsFolder()))
        return false;
    const FolderLock lock(settingsFolder());
    const auto bytes = readFile();
    if (!lock.IsHeld() || !bytes)
        return false;
    IniText text(*bytes);
    setAll(text, unsaved);
    if (!writeFile(text.Bytes()))
        return false;
    unsaved.clear();
    return true;
}

QString SettingsFile() {
    return QDir::toNativeSeparators(settingsPath());
}
