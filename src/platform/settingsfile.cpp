// SPDX-License-Identifier: MIT
#include "platform/settingsfile.h"

#include "platform/inifile.h"
#include "platform/program.h"
#include "platform/settingtext.h"
#include "platform/system.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>
#include <filesystem>
#include <vector>

namespace {

constexpr qint64 largestFile = 1 << 20; // bytes
constexpr int longestWait = 900;        // milliseconds, for another program that saves
constexpr int longestSave = 5000;       // milliseconds, after which a lock was left behind

struct Setting {
    QByteArray section;
    QByteArray key;
    QByteArray value; // as written
};

IniFile settings;             // as loaded, with what was saved since
std::vector<Setting> unsaved; // in the order in which they were saved

// A relative folder is none, as the rules for base directories say. Without a home
// the toolkit would take the root of the file system: the name says what is missing.
QString configurationFolder() {
    const QString folder =
        QDir::cleanPath(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    const bool isNamed = QDir::isAbsolutePath(folder) && folder != QLatin1String("/.config");
    const QString home =
        QDir::homePath() == QDir::rootPath() ? QStringLiteral("$HOME") : QDir::homePath();
    return isNamed ? folder : home + QStringLiteral("/.config");
}

QString settingsFolder() {
    return configurationFolder() + u'/' + ProgramTitle();
}

QString settingsPath() {
    return settingsFolder() + QStringLiteral("/settings.ini");
}

bool haveAPlace() {
    return QDir::isAbsolutePath(settingsPath());
}

// False also for what cannot be looked for.
bool isAbsent(const QFileInfo& file) {
    std::error_code unknown;
    const auto status = std::filesystem::status(file.filesystemFilePath(), unknown);
    return status.type() == std::filesystem::file_type::not_found;
}

// Empty when there is no file, nothing when it cannot be read.
std::optional<QByteArray> readFile() {
    if (!haveAPlace())
        return std::nullopt;
    QFile file(settingsPath());
    const QFileInfo info(file);
    if (isAbsent(info))
        return QByteArray();
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(largestFile);
    return file.error() == QFile::NoError ? std::optional(bytes) : std::nullopt;
}

bool writeToDisk(QFile& file, const QByteArray& bytes) {
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           BringToDisk(file);
}

// The bytes are known to be on disk before they take the old file's place. Their
// place until then has one name, so that what a killed program left there goes.
bool writeFile(const QByteArray& bytes) {
    const QFileInfo info(settingsPath());
    const QFileInfo target(info.exists() ? info.canonicalFilePath() : settingsPath());
    QFile part(target.filePath() + QStringLiteral(".part"));
    std::error_code failure = std::make_error_code(std::errc::io_error);
    if ((!target.exists() || target.isWritable()) && writeToDisk(part, bytes)) {
        if (target.exists())
            part.setPermissions(target.permissions());
        part.close();
        std::filesystem::rename(part.filesystemFileName(), target.filesystemFilePath(), failure);
    }
    if (failure)
        part.remove();
    return !failure;
}

// What is written can be read again.
bool merge() {
    const auto bytes = readFile();
    IniFile text(bytes.value_or(QByteArray()));
    for (const Setting& setting : unsaved)
        text.Set(setting.section, setting.key, setting.value);
    return bytes && text.Bytes().size() <= largestFile && writeFile(text.Bytes());
}

} // namespace

bool LoadSettings() {
    const auto bytes = readFile();
    settings = IniFile(bytes.value_or(QByteArray()));
    unsaved.clear();
    return bytes.has_value();
}

QString GetSetting(const QString& section, const QString& key, const QString& whenAbsent) {
    const auto value = settings.Value(section.toUtf8(), key.toUtf8(), IniFile::Which::Last);
    return value ? ReadSettingValue(*value) : whenAbsent;
}

void SaveSetting(const QString& section, const QString& key, const QString& value) {
    const Setting& saved =
        unsaved.emplace_back(Setting{section.toUtf8(), key.toUtf8(), WriteSettingValue(value)});
    settings.Set(saved.section, saved.key, saved.value);
}

bool FlushSettings() {
    if (unsaved.empty())
        return true;
    const ForTheUserAlone alone; // nobody else shall hold the lock of a killed program
    QLockFile lock(settingsPath() + QStringLiteral(".lock"));
    lock.setStaleLockTime(longestSave);
    if (!haveAPlace() || !QDir().mkpath(settingsFolder()) || !lock.tryLock(longestWait) || !merge())
        return false;
    unsaved.clear();
    return true;
}

QString SettingsFile() {
    return QDir::toNativeSeparators(settingsPath());
}
