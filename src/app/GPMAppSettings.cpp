#include "GPMAppSettings.h"

#include "OwnerOnlyFile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaEnum>

#include <cmath>
#include <utility>

namespace {

const int fileVersion = 1;
const QLatin1String fileKind("gpm");

template <typename Enum>
QString enumName(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(value));
}

// One reader a type: a missing key or a value of no use leaves the field as it is.

void refuse(const QJsonValue &value, const char *key)
{
    if (!value.isUndefined())
        qWarning() << "GPMAppSettings: a setting makes no sense:" << key;
}

void readField(const QJsonObject &object, const char *key, bool &field)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (!value.isBool())
        return refuse(value, key);
    field = value.toBool();
}

void readField(const QJsonObject &object, const char *key, int &field)
{
    const QJsonValue value = object.value(QLatin1String(key));
    // It gives what it is handed for a fraction, and for what no int can hold.
    if (value.toInt(0) != value.toInt(1))
        return refuse(value, key);
    field = value.toInt();
}

void readField(const QJsonObject &object, const char *key, QString &field)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (!value.isString())
        return refuse(value, key);
    field = value.toString();
}

void readField(const QJsonObject &object, const char *key, QDateTime &field)
{
    const QJsonValue value = object.value(QLatin1String(key));
    // All of them are whole numbers that a double holds exactly.
    const double longest = 9e15;
    if (!value.isDouble() || std::abs(value.toDouble()) > longest)
        return refuse(value, key);
    field = QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(value.toDouble()), Qt::UTC);
}

void readField(const QJsonObject &object, const char *key, QStringList &field)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (!value.isArray())
        return refuse(value, key);
    field.clear();
    const QJsonArray entries = value.toArray();
    for (const QJsonValue &entry : entries) {
        if (entry.isString())
            field.append(entry.toString());
    }
}

template <typename Enum>
void readEnum(const QJsonObject &object, const char *key, Enum &field)
{
    bool known = false;
    const QJsonValue name = object.value(QLatin1String(key));
    const int value = QMetaEnum::fromType<Enum>().keyToValue(name.toString().toLatin1(), &known);
    if (!known)
        return refuse(name, key);
    field = static_cast<Enum>(value);
}

} // namespace

GPMAppSettings::GPMAppSettings(const QString &configFolder, const QString &hiddenFolder,
                               Clock clock, QObject *parent)
    : QObject(parent)
    , m_configFolder(configFolder)
    , m_hiddenFolder(hiddenFolder)
    , m_clock(std::move(clock))
{
    if (restoreSettings())
        return;
    qWarning("Can't load app settings. Uses defaults");
    resetToDefaults();
}

QString GPMAppSettings::filePath() const
{
    return m_configFolder + QStringLiteral("/config.json");
}

bool GPMAppSettings::storeSettings()
{
    // The order of the keys is part of the format, and QJsonObject sorts its own.
    const auto pair = [](const char *key, const QJsonValue &value) {
        const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return '"' + QByteArray(key) + "\":" + wrapped.mid(1, wrapped.size() - 2);
    };
    const qint64 backupCheckMs = m_backupCheck.isValid() ? m_backupCheck.toMSecsSinceEpoch() : 0;
    QList<QByteArray> pairs = {
        pair("config", fileKind),
        pair("version", fileVersion),
        pair("recent_list", QJsonArray::fromStringList(m_recentList)),
        pair("clear_clipboard", m_clearClipboard),
        pair("inactivity_interval", m_inactivityInterval),
        pair("autolock_inactive", m_autolockInactive),
        pair("autolock_screensaver", m_autolockScreensaver),
        pair("enable_backup", m_enableBackup),
        pair("backup_count", m_backupCount),
        pair("backup_path", m_backupPath),
        pair("check_updates", m_checkUpdates),
        pair("lock_hotkey", m_lockHotkey),
        pair("plugin_hotkey", m_pluginHotkey),
        pair("language_file", m_languageFile),
        pair("first_start", m_firstStart),
        pair("backup_check", backupCheckMs),
        pair("login_mode", enumName(m_loginMode)),
        pair("plugin_login_mode", enumName(m_pluginLoginMode)),
        pair("plugin_open_mode", enumName(m_pluginOpenMode)),
        pair("backup_interval", enumName(m_backupInterval)),
        pair("instance_id", m_instanceId),
    };
    const bool stored = makeOwnerOnlyFolder(m_configFolder) && keepUnreadableFileAside() &&
                        writeOwnerOnlyFile(filePath(), '{' + pairs.join(',') + '}');
    if (stored)
        m_fileUnreadable = false;
    else
        qWarning() << "GPMAppSettings::storeSettings"
                   << "Can't save app settings:" << filePath();
    return stored;
}

bool GPMAppSettings::restoreSettings()
{
    QFile file(filePath());
    m_fileUnreadable = file.exists();
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll());
    if (!document.isObject() || document.object().isEmpty())
        return false;
    const QJsonObject object = document.object();
    if (object.value(QLatin1String("config")).toString(fileKind) != fileKind)
        return false;
    read(object);
    m_fileUnreadable = false;
    return true;
}

void GPMAppSettings::read(const QJsonObject &object)
{
    readEnum(object, "backup_interval", m_backupInterval);
    readEnum(object, "login_mode", m_loginMode);
    readEnum(object, "plugin_login_mode", m_pluginLoginMode);
    readEnum(object, "plugin_open_mode", m_pluginOpenMode);
    readField(object, "language_file", m_languageFile);
    readField(object, "check_updates", m_checkUpdates);
    readField(object, "plugin_hotkey", m_pluginHotkey);
    readField(object, "lock_hotkey", m_lockHotkey);
    if (!m_lockHotkey.isEmpty() && !m_lockHotkey.compare(m_pluginHotkey, Qt::CaseInsensitive)) {
        qWarning() << "GPMAppSettings: two commands have one hotkey:" << m_lockHotkey;
        m_pluginHotkey.clear();
    }
    readField(object, "backup_path", m_backupPath);
    if (!m_backupPath.isEmpty())
        makeOwnerOnlyFolder(m_backupPath);
    readField(object, "enable_backup", m_enableBackup);
    readField(object, "backup_count", m_backupCount);
    readField(object, "autolock_screensaver", m_autolockScreensaver);
    readField(object, "autolock_inactive", m_autolockInactive);
    readField(object, "inactivity_interval", m_inactivityInterval);
    readField(object, "first_start", m_firstStart);
    readField(object, "backup_check", m_backupCheck);
    readField(object, "clear_clipboard", m_clearClipboard);
    readField(object, "instance_id", m_instanceId);
    readField(object, "recent_list", m_recentList);
}

void GPMAppSettings::resetToDefaults()
{
    m_enableBackup = true;
    m_backupPath = QDir::toNativeSeparators(m_hiddenFolder + QStringLiteral("/backup"));
    m_recentList.clear();
    m_backupInterval = Daily;
    m_backupCount = 10;
    m_clearClipboard = true;
    m_autolockScreensaver = true;
    m_autolockInactive = true;
    m_inactivityInterval = 3;
    m_checkUpdates = true;
    m_firstStart = true;
    m_backupCheck = m_clock();
}

bool GPMAppSettings::keepUnreadableFileAside() const
{
    if (!m_fileUnreadable || !QFile::exists(filePath()))
        return true;
    const QString aside = filePath() + m_clock().toString(QStringLiteral(".yyyyMMdd-hhmmsszzz"));
    return QFile::rename(filePath(), aside);
}
