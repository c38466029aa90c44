#include "ProgramDesk.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QProcess>

namespace {

/// Makes a language in a folder in which the given texts are translated.
void makeLanguage(const QString &folder, const char *code, const char *context,
                  const QMap<QString, QString> &texts)
{
    QFile source(folder + "/passwordmanager_"_s + QLatin1String(code) + ".ts"_s);
    QVERIFY(source.open(QIODevice::WriteOnly));
    QString ts = "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE TS>"
                 "<TS version=\"2.1\"><context><name>%1</name>"_s.arg(QLatin1String(context));
    for (auto it = texts.cbegin(); it != texts.cend(); ++it)
        ts += "<message><source>%1</source><translation>%2</translation></message>"_s.arg(
            it.key(), it.value());
    source.write((ts + "</context></TS>"_s).toUtf8());
    source.close();
    QCOMPARE(QProcess::execute(QStringLiteral(LRELEASE), {"-silent"_s, source.fileName()}), 0);
}

} // namespace

/// Colours, sizes and languages, which make the windows anew.
class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void look()
    {
        ProgramDesk program;
        QTest::keyClick(reach(program.settings(), Setting::Appearance, "theme"), Qt::Key_End);
        QCOMPARE(uiValue(program.test, "Theme").toString(), "Dark"_s);
        const auto ground = [&program] {
            return program.ui.mainWindow()
                ->findChild<QWidget *>("searchField"_s)
                ->palette()
                .color(QPalette::Base)
                .lightness();
        };
        QVERIFY(ground() < 100);
        QTest::keyClick(reach(program.settings(), Setting::Appearance, "theme"), Qt::Key_Up);
        QVERIFY(ground() > 200);
        QTest::keyClick(reach(program.settings(), Setting::Appearance, "motion_off"),
                        Qt::Key_Space);
        QCOMPARE(uiValue(program.test, "MotionOff").toBool(), true);

        const int rowBefore = program.part<QListView>("categoryList")->sizeHintForRow(0);
        QTest::keyClick(reach(program.settings(), Setting::Appearance, "text_size"), Qt::Key_End);
        QCOMPARE(uiValue(program.test, "TextSize").toInt(), 150);
        const auto *former = program.ui.mainWindow();
        QTRY_VERIFY(program.ui.mainWindow() != former);
        QVERIFY(program.ui.mainWindow()->isVisible());
        QCOMPARE(program.part<QListView>("categoryList")->sizeHintForRow(0), rowBefore * 3 / 2);
        // The settings are still open where they were, and a later start has the same size.
        auto *dialog = program.window().findChild<SettingsDialog *>();
        QVERIFY(dialog && find<QWidget>(*dialog, "text_size")->isVisible());
        QCOMPARE(dialog->fontInfo().pixelSize(), 20);
        Style::setTextPercent(100);
        const PMUiProvider later(program.test.core, [] { return true; });
        QCOMPARE(Style::textPercent(), 150);
        Theme().setTextPercent(100);
        qApp->setStyleSheet({});
    }

    void languageWithoutRestart()
    {
        ProgramDesk program;
        makeLanguage(program.test.folder.path(), "xx", "Sidebar", {{"Lock"_s, "Verrou"_s}});
        const QString id = program.test.addLogin("Shop"_s);
        program.test.addLogin("Bank"_s);
        auto *categories = program.part<QListView>("categoryList");
        QTest::keyClick(categories, Qt::Key_Down);
        QTest::keyClick(categories, Qt::Key_Down);
        QTest::keyClick(categories, Qt::Key_Down);
        const int row = categories->currentIndex().row();
        auto *items = program.part<QListView>("itemList");
        QTest::keyClick(items, Qt::Key_End);
        const auto shownTitle = [&program] {
            return program.part<QLabel>("itemTitle")->accessibleName();
        };
        QCOMPARE(shownTitle(), "Shop"_s);

        QTest::keyClick(reach(program.settings(), Setting::General, "language_file"), Qt::Key_End);
        QCOMPARE(configValue(program.test, "language_file").toString(), "passwordmanager_xx"_s);
        const auto lockName = [&program] {
            return program.part<QAbstractButton>("lockButton")->accessibleName();
        };
        QTRY_COMPARE(lockName(), "Verrou"_s);
        QVERIFY(program.ui.mainWindow()->isVisible());
        QVERIFY(program.test.core.currentSafe()->isUnlocked());
        QCOMPARE(program.part<QListView>("categoryList")->currentIndex().row(), row);
        QCOMPARE(shownTitle(), "Shop"_s);

        // The windows of before are gone: what happens to the safe happens once.
        program.test.core.lockCurrentSafe();
        QTRY_VERIFY(program.part<QLineEdit>("masterPassword")->isVisible());
        QVERIFY(program.ui.setLanguage("passwordmanager_en"_s));
        QTRY_COMPARE(lockName(), "Lock"_s);
        QVERIFY(program.part<QLineEdit>("masterPassword")->isVisible());
        QCOMPARE(program.part<QComboBox>("safeSelector")->currentText(),
                 program.test.core.currentSafe()->name());
        QVERIFY(!program.ui.setLanguage("passwordmanager_nowhere"_s));
    }

    void unsavedEditIsAskedFor()
    {
        ProgramDesk program;
        program.test.addLogin("Shop"_s);
        QTest::keyClick(program.part<QListView>("itemList"), Qt::Key_Home);
        QApplication::setActiveWindow(program.ui.mainWindow());
        QTest::keyClick(program.ui.mainWindow(), Qt::Key_E, Qt::ControlModifier);
        auto *title = program.part<QLineEdit>("titleField");
        QVERIFY(title);
        QTest::keyClicks(title, "More"_s);
        const QString text = title->text();
        // To leave the question is to go on editing.
        bool asked = false;
        QTimer::singleShot(0, qApp, [&program, &asked] {
            auto *question = program.window().findChild<QuestionDialog *>();
            asked = question;
            if (question)
                question->reject();
        });
        QVERIFY(!program.ui.setTextPercent(130));
        QVERIFY(asked);
        QCOMPARE(Style::textPercent(), 100);
        QCOMPARE(program.part<QLineEdit>("titleField")->text(), text);
    }
};

QTEST_MAIN(TestLook)
#include "tst_look.moc"
