#include "PMTranslator.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestPmTranslator : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    /// Makes a language whose own name for itself is given.
    void makeLanguage(const char *code, const char *name)
    {
        const QString base =
            m_folder.filePath(QStringLiteral("passwordmanager_") + QLatin1String(code));
        QFile source(base + QStringLiteral(".ts"));
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.write("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\">"
                     "<context><name>PMTranslator</name><message><source>SettingsLocaleTitle"
                     "</source><translation>" +
                     QByteArray(name) + "</translation></message></context></TS>");
        source.close();
        QCOMPARE(QProcess::execute(QStringLiteral(LRELEASE),
                                   {QStringLiteral("-silent"), source.fileName()}),
                 0);
    }

    static QString shown()
    {
        return QCoreApplication::translate("PMTranslator", "SettingsLocaleTitle");
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeLanguage("de", "Deutsch");
        makeLanguage("fr", "Français");
        QFile broken(m_folder.filePath(QStringLiteral("passwordmanager_xx.qm")));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no translation");
    }

    void languages()
    {
        const PMTranslator translator(m_folder.path());
        QCOMPARE(
            translator.availableLanguages().join(QLatin1Char(' ')),
            QStringLiteral(
                "passwordmanager_en passwordmanager_de passwordmanager_fr passwordmanager_xx"));
        QVERIFY(translator.hasTranslation(QStringLiteral("en")));
        QVERIFY(translator.hasTranslation(QStringLiteral("fr")));
        QVERIFY(!translator.hasTranslation(QStringLiteral("it")));
        QVERIFY(!translator.hasTranslation(QString()));
        QCOMPARE(translator.displayName(QStringLiteral("passwordmanager_en")),
                 QStringLiteral("English"));
        QCOMPARE(translator.displayName(QStringLiteral("passwordmanager_fr")),
                 QStringLiteral("Français"));
        QCOMPARE(translator.displayName(QStringLiteral("passwordmanager_xx")),
                 QStringLiteral("passwordmanager_xx"));
    }

    void folderOfAnInstalledProgram()
    {
        const QTemporaryDir system;
        const QDir root(system.path());
        QVERIFY(root.mkpath(QStringLiteral("share/glaceron/translations")) &&
                root.mkpath(QStringLiteral("bin")));
        QCOMPARE(PMTranslator::folderOf(root.filePath(QStringLiteral("bin"))),
                 root.filePath(QStringLiteral("share/glaceron/translations")));
        // What lies beside the program was made with it.
        QVERIFY(root.mkpath(QStringLiteral("bin/translations")));
        QCOMPARE(PMTranslator::folderOf(root.filePath(QStringLiteral("bin"))),
                 root.filePath(QStringLiteral("bin/translations")));
    }

    void switching()
    {
        PMTranslator translator(m_folder.path());
        const QString source = shown();
        QCOMPARE(translator.translate(QStringLiteral("de"), false),
                 QStringLiteral("passwordmanager_de"));
        QCOMPARE(shown(), QStringLiteral("Deutsch"));
        QCOMPARE(translator.translate(QStringLiteral("passwordmanager_fr"), true),
                 QStringLiteral("passwordmanager_fr"));
        QCOMPARE(shown(), QStringLiteral("Français"));
        for (const char *bad : {"passwordmanager_xx", "passwordmanager_it", "../x"}) {
            QCOMPARE(translator.translate(QLatin1String(bad), true), QString());
            QCOMPARE(shown(), QStringLiteral("Français"));
        }
        QCOMPARE(translator.translate(QString(), true), QStringLiteral("passwordmanager_en"));
        QCOMPARE(shown(), source);
    }

    void shippedLanguages()
    {
        PMTranslator translator(QStringLiteral(SHIPPED_TRANSLATIONS));
        QStringList names;
        for (const QString &language : translator.availableLanguages())
            names.append(translator.displayName(language));
        names.sort();
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QString::fromUtf8("Deutsch English Español Français Русский"));
        QCOMPARE(translator.translate({}, true), QStringLiteral("passwordmanager_en"));
        QCOMPARE(QCoreApplication::translate("ItemKinds", "%n items", nullptr, 1),
                 QStringLiteral("1 item"));
    }
};

QTEST_GUILESS_MAIN(TestPmTranslator)
#include "tst_pmtranslator.moc"
