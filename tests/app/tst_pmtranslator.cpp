#include "../Text.h"
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
        const QString base = m_folder.filePath("passwordmanager_"_s + QLatin1String(code));
        QFile source(base + ".ts"_s);
        QVERIFY(source.open(QIODevice::WriteOnly));
        source.write("<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS><TS version=\"2.1\">"
                     "<context><name>PMTranslator</name><message><source>SettingsLocaleTitle"
                     "</source><translation>" +
                     QByteArray(name) + "</translation></message></context></TS>");
        source.close();
        QCOMPARE(QProcess::execute(QStringLiteral(LRELEASE), {"-silent"_s, source.fileName()}), 0);
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
        QFile broken(m_folder.filePath("passwordmanager_xx.qm"_s));
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
        QVERIFY(translator.hasTranslation("en"_s));
        QVERIFY(translator.hasTranslation("fr"_s));
        QVERIFY(!translator.hasTranslation("it"_s));
        QVERIFY(!translator.hasTranslation(QString()));
        QCOMPARE(translator.displayName("passwordmanager_en"_s), "English"_s);
        QCOMPARE(translator.displayName("passwordmanager_fr"_s), "Français"_s);
        QCOMPARE(translator.displayName("passwordmanager_xx"_s), "passwordmanager_xx"_s);
    }

    void folderOfAnInstalledProgram()
    {
        const QTemporaryDir system;
        const QDir root(system.path());
        QVERIFY(root.mkpath("share/glaceron/translations"_s) && root.mkpath("bin"_s));
        QCOMPARE(PMTranslator::folderOf(root.filePath("bin"_s)),
                 root.filePath("share/glaceron/translations"_s));
        // What lies beside the program was made with it.
        QVERIFY(root.mkpath("bin/translations"_s));
        QCOMPARE(PMTranslator::folderOf(root.filePath("bin"_s)),
                 root.filePath("bin/translations"_s));
    }

    void switching()
    {
        PMTranslator translator(m_folder.path());
        const QString source = shown();
        QCOMPARE(translator.translate("de"_s, false), "passwordmanager_de"_s);
        QCOMPARE(shown(), "Deutsch"_s);
        QCOMPARE(translator.translate("passwordmanager_fr"_s, true), "passwordmanager_fr"_s);
        QCOMPARE(shown(), "Français"_s);
        for (const char *bad : {"passwordmanager_xx", "passwordmanager_it", "../x"}) {
            QCOMPARE(translator.translate(QLatin1String(bad), true), QString());
            QCOMPARE(shown(), "Français"_s);
        }
        QCOMPARE(translator.translate(QString(), true), "passwordmanager_en"_s);
        QCOMPARE(shown(), source);
    }

    void shippedLanguages()
    {
        PMTranslator translator(QStringLiteral(SHIPPED_TRANSLATIONS));
        QStringList names;
        for (const QString &language : translator.availableLanguages())
            names.append(translator.displayName(language));
        names.sort();
        QCOMPARE(names.join(QLatin1Char(' ')), "Deutsch English Español Français Русский"_s);
        QCOMPARE(translator.translate({}, true), "passwordmanager_en"_s);
        QCOMPARE(QCoreApplication::translate("ItemKinds", "%n items", nullptr, 1), "1 item"_s);
    }
};

QTEST_GUILESS_MAIN(TestPmTranslator)
#include "tst_pmtranslator.moc"
