#include "UiTesting.h"
#include "style/Theme.h"
#include "widgets/MessageLabel.h"
#include "widgets/SnackBar.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace {

struct Shown
{
    explicit Shown(bool motion = false)
    {
        theme.setReducedMotion(!motion);
        host.resize(600, 400);
        field = new QLineEdit(&host);
        bar = new SnackBar(theme, &host);
        host.show();
        host.activateWindow();
        field->setFocus();
    }

    void seconds(int count)
    {
        for (int i = 0; i < count; ++i)
            QMetaObject::invokeMethod(bar->findChild<QTimer *>(), "timeout");
    }

    QRect place() const { return bar->geometry(); }

    Theme theme;
    QWidget host;
    QLineEdit *field;
    SnackBar *bar;
};

/// What assistive tools know of a widget.
QPair<QAccessible::Role, QString> told(QWidget *widget)
{
    const QAccessibleInterface *tool = QAccessible::queryAccessibleInterface(widget);
    return {tool->role(), tool->text(QAccessible::Name)};
}

} // namespace

class TestSnackBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void easesInAndGoesByItself()
    {
        Shown shown(true);
        QVERIFY(shown.bar->isHidden());
        shown.bar->show("Copied"_s);
        QVERIFY(shown.bar->shown() < 1);
        QTRY_COMPARE(shown.bar->shown(), 1.0);
        QVERIFY(shown.host.rect().contains(shown.place()));
        shown.host.resize(900, 500);
        QVERIFY(shown.host.rect().contains(shown.place()));
        QVERIFY(qAbs(shown.place().center().x() - 450) <= 1);
        shown.seconds(5);
        QVERIFY(shown.bar->isVisible());
        // What comes next has its own time.
        shown.bar->show("Removed"_s, "Undo"_s, 3);
        shown.seconds(2);
        QCOMPARE(shown.bar->shown(), 1.0);
        shown.seconds(1);
        QTRY_VERIFY(shown.bar->isHidden());
    }

    void actionGivesTheKeyboardBack()
    {
        Shown shown;
        QVERIFY(QTest::qWaitForWindowActive(&shown.host));
        QSignalSpy chosen(shown.bar, &SnackBar::actionChosen);
        shown.bar->show("Removed"_s, "Undo"_s);
        QCOMPARE(shown.bar->shown(), 1.0);
        QVERIFY(shown.field->hasFocus());
        QTest::keyClick(shown.field, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget()->objectName(), "snackAction"_s);
        // The keyboard is on it: it waits.
        shown.seconds(20);
        QVERIFY(shown.bar->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(chosen.count(), 1);
        QVERIFY(shown.bar->isHidden() && shown.field->hasFocus());

        shown.bar->show("Removed"_s, "Undo"_s);
        QTest::keyClick(shown.field, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(shown.bar->isHidden() && shown.field->hasFocus());
        QCOMPARE(chosen.count(), 1);
    }

    void goesAtOnceWhenTheHostIsDisabled()
    {
        Shown shown(true);
        shown.bar->show("Removed Bank"_s, "Undo"_s);
        shown.host.setEnabled(false);
        QVERIFY(shown.bar->isHidden());
        shown.seconds(1);
        shown.host.setEnabled(true);
        QVERIFY(shown.bar->isHidden());
    }

    void messagesAreTold()
    {
        Shown shown;
        MessageLabel message(&shown.host);
        message.setMessage("Wrong"_s);
        shown.bar->show("Removed"_s, "Undo"_s);
        QCOMPARE(told(&message), qMakePair(QAccessible::AlertMessage, "Wrong"_s));
        QCOMPARE(told(shown.bar), qMakePair(QAccessible::AlertMessage, "Removed. Undo"_s));
        message.setMessage({});
        QCOMPARE(told(&message).second, QString());
    }
};

QTEST_MAIN(TestSnackBar)
#include "tst_snackbar.moc"
