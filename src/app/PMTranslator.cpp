#include "PMTranslator.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QLibraryInfo>

namespace {

const QString prefix = QStringLiteral("passwordmanager_");
const QString qtPrefix = QStringLiteral("qtbase_");
const QString builtIn = QStringLiteral("passwordmanager_en");

} // namespace

PMTranslator::PMTranslator(const QString &folder, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
{
}

QString PMTranslator::folderOf(const QString &programFolder)
{
    const QString beside = programFolder + QStringLiteral("/translations");
    const QString shared = programFolder + QStringLiteral("/../share/glaceron/translations");
    return !QDir(beside).exists() && QDir(shared).exists() ? QDir::cleanPath(shared) : beside;
}

QStringList PMTranslator::availableLanguages() const
{
    QStringList languages{builtIn};
    const QStringList files =
        QDir(m_folder).entryList({prefix + QStringLiteral("*.qm")}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QString language = file.left(file.size() - 3);
        if (!languages.contains(language))
            languages.append(language);
    }
    return languages;
}

QString PMTranslator::displayName(const QString &language) const
{
    if (language == builtIn)
        return QStringLiteral("English");
    QTranslator translator;
    if (!translator.load(filePath(language)))
        return language;
    const QString name = translator.translate("PMTranslator", "SettingsLocaleTitle");
    return name.isEmpty() ? language : name;
}

bool PMTranslator::hasTranslation(const QString &code) const
{
    return availableLanguages().contains(prefix + code);
}

QString PMTranslator::translate(const QString &target, bool fromSettings)
{
    qDebug() << "Translator: Translate to" << target;
    const QString language = fromSettings ? target : prefix + target;
    const bool source = language.isEmpty() || language == builtIn;
    if (source && !QFile::exists(filePath(builtIn))) {
        install(nullptr, builtIn);
        return builtIn;
    }
    const QString path = filePath(source ? builtIn : language);
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(path)) {
        qDebug() << "Translator: Failed load translations from" << path;
        return {};
    }
    install(std::move(translator), source ? builtIn : language);
    qDebug() << "Translator: Successful load translation from" << path;
    return source ? builtIn : language;
}

void PMTranslator::install(std::unique_ptr<QTranslator> translator, const QString &language)
{
    // Destroying a translator removes it from the application. The new one comes first, so that
    // nobody sees the source language in between.
    auto ofQt = std::make_unique<QTranslator>();
    const QString name = qtPrefix + language.mid(prefix.size());
    if (!ofQt->load(name, m_folder) &&
        !ofQt->load(name, QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        ofQt.reset();
    if (ofQt)
        QCoreApplication::installTranslator(ofQt.get());
    if (translator)
        QCoreApplication::installTranslator(translator.get());
    m_installedOfQt = std::move(ofQt);
    m_installed = std::move(translator);
}

QString PMTranslator::filePath(const QString &language) const
{
    return m_folder + QLatin1Char('/') + language + QStringLiteral(".qm");
}
