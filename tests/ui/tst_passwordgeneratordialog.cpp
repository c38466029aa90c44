#include "PMUiProvider.h"
#include "UiSettings.h"
#include "UiTesting.h"
#include "dialogs/PasswordGeneratorDialog.h"
#include "dialogs/RecentPasswords.h"
#include "style/Theme.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QToolButton>

namespace {

/// What the window needs, with a random source that counts up: every password is another.
struct Fixture
{
    Fixture() { recent.setKeeping(true); }

    std::unique_ptr<PasswordGeneratorDialog> open()
    {
        const RandomBytes counting = [this](unsigned char *buffer, int size) {
            for (int i = 0; i < size; ++i)
                buffer[i] = static_cast<unsigned char>(i * 7 + filled);
            ++filled;
            return !failing;
        };
        auto dialog = std::make_unique<PasswordGeneratorDialog>(
            PasswordGeneratorDialog::Parts{uiSettings, test.core.settings(), test.core.clipboard(),
                                           recent, counting},
            theme, nullptr);
        dialog->show();
        return dialog;
    }

    TestCore test;
    Theme theme;
    UiSettings uiSettings{test.folder.path()};
    QDateTime now{QDate(2026, 11, 13), QTime(9, 0), Qt::UTC};
    RecentPasswords recent{[this] { return now; }};
    int filled = 0;
    bool failing = false;
};

QString shown(const QWidget &dialog)
{
    return find<QLineEdit>(dialog, "generatedPassword")->text();
}

QStringList recentTexts(const QWidget &dialog)
{
    QStringList texts;
    for (const QLabel *label : find<QWidget>(dialog, "recentPasswords")->findChildren<QLabel *>()) {
        if (label->isVisible())
            texts.append(label->text());
    }
    return texts;
}

} // namespace

class TestPasswordGeneratorDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyChangeMakesAPassword()
    {
        Fixture fixture;
        const auto dialog = fixture.open();
        auto *length = find<QSpinBox>(*dialog, "length");
        auto *specials = find<QSpinBox>(*dialog, "specialCount");
        QCOMPARE(length->value(), 8);
        QCOMPARE(specials->value(), 4);
        QStringList seen{shown(*dialog)};
        const auto changed = [&] {
            const bool fresh = !seen.contains(shown(*dialog));
            seen.append(shown(*dialog));
            return fresh;
        };
        QTest::keyClick(length, Qt::Key_Up);
        QVERIFY(changed());
        QCOMPARE(shown(*dialog).size(), 9);
        QTest::keyClick(specials, Qt::Key_Down);
        QVERIFY(changed());
        QTest::mouseClick(find<QToolButton>(*dialog, "regenerateButton"), Qt::LeftButton);
        QVERIFY(changed());

        // The special characters follow a length that shrinks, with one new password.
        specials->setValue(9);
        const int before = fixture.filled;
        length->setValue(5);
        QCOMPARE(specials->value(), 5);
        QCOMPARE(specials->maximum(), 5);
        QCOMPARE(fixture.filled, before + 1);
        length->setValue(3);
        QCOMPARE(length->value(), 4);
        length->setValue(17);
        QCOMPARE(length->value(), 16);
        specials->setValue(0);
        QCOMPARE(specials->value(), 1);

        fixture.failing = true;
        find<QToolButton>(*dialog, "regenerateButton")->click();
        QCOMPARE(shown(*dialog), QString());
    }

    void shapeIsKept()
    {
        Fixture fixture;
        auto dialog = fixture.open();
        find<QSpinBox>(*dialog, "length")->setValue(14);
        find<QSpinBox>(*dialog, "specialCount")->setValue(3);
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        dialog.reset();
        const QSettings store(fixture.test.folder.filePath("uisettings.ini"_s),
                              QSettings::IniFormat);
        QCOMPARE(store.value("PasswordGenerator_Length"_s).toInt(), 14);
        QCOMPARE(store.value("PasswordGenerator_SpecialCharsCount"_s).toInt(), 3);
        dialog = fixture.open();
        QCOMPARE(shown(*dialog).size(), 14);
        QCOMPARE(find<QSpinBox>(*dialog, "specialCount")->value(), 3);
    }

    void placing()
    {
        Fixture fixture;
        const auto dialog = fixture.open();
        auto *button = find<QPushButton>(*dialog, "placeButton");
        QVERIFY(!button->isEnabled());
        QVERIFY(!button->toolTip().isEmpty());
        QString placed;
        QString obstacle;
        dialog->setTarget({[&placed](const QString &password) { placed = password; },
                           [&obstacle] { return obstacle; }});
        QVERIFY(button->isEnabled());
        // The browser left behind the window's back: nothing is handed over and it says why.
        obstacle = "gone"_s;
        button->click();
        QCOMPARE(placed, QString());
        QVERIFY(dialog->isVisible());
        QCOMPARE(button->toolTip(), obstacle);
        obstacle.clear();
        dialog->updatePlace();
        const QString seen = shown(*dialog);
        QTest::keyClick(find<QSpinBox>(*dialog, "specialCount"), Qt::Key_Return);
        QCOMPARE(placed, seen);
        QVERIFY(!dialog->isVisible());
    }

    void recentPasswords()
    {
        Fixture fixture;
        const auto dialog = fixture.open();
        const QString used = shown(*dialog);
        QTest::keyClick(find<QPushButton>(*dialog, "copyButton"), Qt::Key_Space);
        QCOMPARE(QGuiApplication::clipboard()->text(), used);
        QStringList made;
        for (int i = 0; i < 12; ++i) {
            find<QToolButton>(*dialog, "regenerateButton")->click();
            made.prepend(shown(*dialog));
        }
        // Ten of thirteen, and among them the old one that was used.
        QCOMPARE(fixture.recent.entries().size(), std::size_t(10));
        for (int i = 0; i < 9; ++i)
            QCOMPARE(fixture.recent.password(i), made.at(i));
        QCOMPARE(fixture.recent.password(9), used);

        QTest::keyClick(find<QPushButton>(*dialog, "recentButton"), Qt::Key_Space);
        QCOMPARE(recentTexts(*dialog).count("used"_s), 1);
        for (const QString &text : recentTexts(*dialog))
            QVERIFY(!made.contains(text) && text != used);
        const auto buttons =
            find<QWidget>(*dialog, "recentPasswords")->findChildren<QToolButton *>();
        QTest::mouseClick(buttons.at(2), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->text(), made.at(2));

        fixture.recent.setKeeping(false);
        QVERIFY(fixture.recent.entries().empty());
        QVERIFY(recentTexts(*dialog).isEmpty());
        find<QToolButton>(*dialog, "regenerateButton")->click();
        QVERIFY(fixture.recent.entries().empty());
    }

    void mostlyUsed()
    {
        RecentPasswords recent;
        recent.setKeeping(true);
        for (int i = 0; i < 10; ++i) {
            recent.add(QString::number(i));
            recent.markUsed(QString::number(i));
        }
        // All are in use: the oldest goes, not the one that came.
        recent.add("new"_s);
        QCOMPARE(recent.password(0), "new"_s);
        QCOMPARE(recent.password(9), "1"_s);
    }

    void lockingClosesTheWindow()
    {
        TestCore test;
        PMUiProvider ui(test.core, [] { return true; });
        ui.connectCore();
        ui.createMainWindow();
        QVERIFY(test.createSafe());
        ui.bringToFront();
        QTest::mouseClick(find<QToolButton>(*ui.mainWindow(), "generatorButton"), Qt::LeftButton);
        const QPointer<PasswordGeneratorDialog> dialog =
            ui.mainWindow()->findChild<PasswordGeneratorDialog *>();
        QVERIFY(dialog && dialog->isVisible());
        QVERIFY(find<QPushButton>(*dialog, "recentButton")->isEnabled());
        QVERIFY(!find<QPushButton>(*dialog, "placeButton")->isEnabled());
        test.core.lockCurrentSafe();
        QTRY_VERIFY(!dialog);
    }
};

QTEST_MAIN(TestPasswordGeneratorDialog)
#include "tst_passwordgeneratordialog.moc"
