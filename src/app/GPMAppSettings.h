#pragma once

#include "Clock.h"

#include <QDateTime>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QStringList>

/// One user preference: getter, setter and change signal.
#define GPM_SETTING(Type, name, Setter, initial)                                                   \
public:                                                                                            \
    Q_PROPERTY(Type name READ name WRITE Setter NOTIFY name##Changed)                              \
    Type name() const                                                                              \
    {                                                                                              \
        return m_##name;                                                                           \
    }                                                                                              \
    void Setter(const Type &value)                                                                 \
    {                                                                                              \
        if (m_##name == value)                                                                     \
            return;                                                                                \
        m_##name = value;                                                                          \
        Q_EMIT name##Changed(value);                                                               \
    }                                                                                              \
    Q_SIGNAL void name##Changed(const Type &name);                                                 \
                                                                                                   \
private:                                                                                           \
    Type m_##name{initial};

/// The user's preferences and the few facts that survive a restart, kept in "config.json". Used
/// from the GUI thread alone. Changes are kept by storeSettings().
class GPMAppSettings : public QObject
{
    Q_OBJECT

public:
    enum BackupInterval { Daily = 0, Week = 1, Month = 2 };
    Q_ENUM(BackupInterval)
    enum LoginMode { Fill = 0, FillAndSubmit = 1 };
    Q_ENUM(LoginMode)
    enum PluginOpenMode { Current = 0, NewTab = 1, NewWindow = 2 };
    Q_ENUM(PluginOpenMode)
    enum PluginLoginMode { PluginFill = 0, PluginFillAndSubmit = 1 };
    Q_ENUM(PluginLoginMode)
    /// State of a browser's extension; shown, not stored.
    enum PluginState { Unavailable = 0, Available = 1, Installed = 2 };
    Q_ENUM(PluginState)

    /// Loads "config.json" of the folder; a failed load logs a warning and resets to defaults.
    /// @param configFolder folder of the file, made when the file is stored
    /// @param hiddenFolder the application's hidden folder in the user's home, home of the backups
    GPMAppSettings(const QString &configFolder, const QString &hiddenFolder,
                   Clock clock = systemTime, QObject *parent = nullptr);

    QString filePath() const;

    GPM_SETTING(bool, enableBackup, setEnableBackup, true)
    GPM_SETTING(BackupInterval, backupInterval, setBackupInterval, Daily)
    GPM_SETTING(QString, backupPath, setBackupPath, )
    GPM_SETTING(int, backupCount, setBackupCount, 10)
    GPM_SETTING(bool, clearClipboard, setClearClipboard, true)
    GPM_SETTING(bool, autolockScreensaver, setAutolockScreensaver, true)
    GPM_SETTING(bool, autolockInactive, setAutolockInactive, true)
    GPM_SETTING(int, inactivityInterval, setInactivityInterval, 3)
    GPM_SETTING(bool, checkUpdates, setCheckUpdates, true)
    GPM_SETTING(QString, lockHotkey, setLockHotkey, )
    GPM_SETTING(QString, pluginHotkey, setPluginHotkey, )
    GPM_SETTING(LoginMode, loginMode, setLoginMode, FillAndSubmit)
    GPM_SETTING(PluginOpenMode, pluginOpenMode, setPluginOpenMode, Current)
    GPM_SETTING(PluginLoginMode, pluginLoginMode, setPluginLoginMode, PluginFill)
    GPM_SETTING(QString, languageFile, setLanguageFile, )
    GPM_SETTING(bool, firstStart, setFirstStart, true)
    GPM_SETTING(QDateTime, backupCheck, setBackupCheck, )
    GPM_SETTING(QString, instanceId, setInstanceId, )
    GPM_SETTING(QStringList, recentList, setRecentList, )

public Q_SLOTS:
    /// Writes the file whole, replacing the previous one. A file that could not be loaded is kept
    /// aside first. False when it cannot be written; logged.
    bool storeSettings();

    /// Reads the file; keys that it lacks keep their values. False when it is missing, unreadable
    /// or not a settings file.
    bool restoreSettings();

private:
    void resetToDefaults();
    void read(const QJsonObject &object);
    bool keepUnreadableFileAside() const;

    QString m_configFolder;
    QString m_hiddenFolder;
    Clock m_clock;
    bool m_fileUnreadable = false;
};
