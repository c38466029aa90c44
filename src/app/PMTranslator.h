#pragma once

#include <QObject>
#include <QStringList>
#include <QTranslator>

#include <memory>

/// The program's languages: the files "passwordmanager_*.qm" of a folder, each named by its file
/// name without ".qm". English is built in and always there.
class PMTranslator : public QObject
{
    Q_OBJECT

public:
    explicit PMTranslator(const QString &folder, QObject *parent = nullptr);

    /// Where an installed or built program has its languages: beside it or, when they are not
    /// there, in the system's share.
    static QString folderOf(const QString &programFolder);

    /// Names of the languages, English first.
    QStringList availableLanguages() const;

    /// The language's own word for itself, "English" for the built-in one.
    QString displayName(const QString &language) const;

    /// Whether there is a translation for a two-letter language code.
    bool hasTranslation(const QString &code) const;

    /// Switches to a language, which replaces the one before. An empty target, or English, is the
    /// source language.
    /// @param target a language's name when fromSettings, else a two-letter code
    /// @return the name of the language that is shown now; empty when the file could not be loaded,
    ///     and then nothing has changed
    QString translate(const QString &target, bool fromSettings);

private:
    QString filePath(const QString &language) const;
    void install(std::unique_ptr<QTranslator> translator, const QString &language);

    QString m_folder;
    std::unique_ptr<QTranslator> m_installed;
    std::unique_ptr<QTranslator> m_installedOfQt; ///< the texts of Qt's own menus and dialogs
};
