#include "EveryWindow.h"
#include "WindowChecks.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include <cstdio>
#include <map>

/// Walks over every window of the program, in both themes, all languages and several text sizes.

/// What visible windows tell of the values.
static QStringList shownValues(const QStringList &values)
{
    QStringList found;
    const auto look = [&](const QWidget &widget, const QString &text) {
        for (const QString &value : values) {
            if (text.contains(value))
                found << "%1 in %2 of %3"_s.arg(value,
                                                QLatin1String(widget.metaObject()->className()),
                                                widget.window()->objectName());
        }
    };
    for (const QWidget *widget : QApplication::allWidgets()) {
        if (!widget->isVisible())
            continue;
        look(*widget, widget->isWindow() ? widget->windowTitle() : widget->toolTip());
        for (const char *property : {"text", "plainText"})
            look(*widget, widget->property(property).toString());
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        for (int row = 0; view && view->model() && row < view->model()->rowCount(); ++row)
            look(*widget, view->model()->index(row, 0).data().toString());
    }
    return found;
}

class TestEveryWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsAreSeen()
    {
        QWidget window;
        window.resize(300, 200);
        auto *unnamed = new QToolButton(&window);
        unnamed->setIcon(QIcon(":/splash.png"_s));
        unnamed->setFocusPolicy(Qt::StrongFocus);
        auto *trap = new QPlainTextEdit(&window);
        trap->setAccessibleName("Note"_s);
        trap->setGeometry(0, 100, 100, 40);
        auto *narrow = new QLabel("A text that is longer than its place"_s, &window);
        narrow->setGeometry(0, 40, 40, 20);
        auto *choice = new QComboBox(&window);
        choice->addItem("A choice that is cut"_s);
        choice->setGeometry(200, 100, 60, 30);
        auto *outside = new QPushButton("Save"_s, &window);
        outside->setGeometry(280, 60, 100, 40);
        auto *pale = new QLabel("Pale"_s, &window);
        pale->setGeometry(0, 70, 100, 20);
        pale->setStyleSheet("background: #ffffff; color: #cccccc;"_s);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto tells = [](const QStringList &faults, const char *part) {
            return !faults.filter(QLatin1String(part)).isEmpty();
        };
        QVERIFY(tells(WindowChecks::nameFaults(window), "has no name"));
        QVERIFY(tells(WindowChecks::tabFaults(window), "Tab does not get out"));
        QVERIFY(tells(WindowChecks::clippingFaults(window), "longer than its place"));
        QVERIFY(tells(WindowChecks::clippingFaults(window), "QComboBox"));
        QVERIFY(tells(WindowChecks::clippingFaults(window), "reaches out"));
        QVERIFY(tells(WindowChecks::contrastFaults(window), "Pale"));
        window.setMinimumSize(560, 575);
        QVERIFY(tells(WindowChecks::sizeFaults(window), "needs 560"));
    }

    void keyboardAndNames()
    {
        QVERIFY(allPass({}, [](QWidget &window, const Stage &) {
            return WindowChecks::nameFaults(window) + WindowChecks::tabFaults(window);
        }));
    }

    void contrast_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }
    void contrast()
    {
        QFETCH(bool, dark);
        QVERIFY(allPass({dark, 100, {}}, [](QWidget &window, const Stage &) {
            return WindowChecks::contrastFaults(window);
        }));
    }

    void textsFit_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("percent");
#ifdef __SANITIZE_ADDRESS__
        // Much slower there, and the other rows take the same ways through the code.
        QTest::newRow("ru 150 %") << "ru"_s << 150;
#else
        for (const char *language : {"en", "de", "es", "fr", "ru"}) {
            for (const int percent : {90, 100, 150})
                QTest::addRow("%s %d %%", language, percent)
                    << QString::fromLatin1(language) << percent;
        }
#endif
    }
    void textsFit()
    {
        QFETCH(QString, language);
        QFETCH(int, percent);
        QVERIFY(allPass({false, percent, language}, [percent](QWidget &window, const Stage &) {
            const QStringList tooLarge =
                percent > 100 ? QStringList() : WindowChecks::sizeFaults(window);
            return WindowChecks::clippingFaults(window) + tooLarge;
        }));
    }

    void everythingIsTranslated()
    {
        // Of the languages only this one has no letter of English.
        QVERIFY(allPass({false, 100, "ru"_s}, [](QWidget &window, const Stage &stage) {
            return WindowChecks::latinTexts(window, stage.ownWords());
        }));
    }

    void aLockLeavesNoItemInSight_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name :
             {"edit-login", "selection", "health", "generator-recent", "move-in-preview", "export",
              "question", "save-login", "quick-access"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void aLockLeavesNoItemInSight()
    {
        QFETCH(QString, name);
        const auto shown = std::find_if(
            everyWindow().begin(), everyWindow().end(),
            [&name](const WindowCase &one) { return name == QLatin1String(one.name); });
        QVERIFY(shown != everyWindow().end());
        Stage stage(shown->safe);
        stage.open({});
        QVERIFY(shown->show(stage));
        QStringList values{"Alpine Shop"_s}; // in a file to be moved in
        for (const PMListItem *item : stage.test.core.currentSafe()->items()) {
            for (const char *field : {"title", "login", "password", "number"}) {
                const QString value = item->property(field).toString();
                if (!value.isEmpty())
                    values << value;
            }
        }
        QVERIFY(!shownValues(values).isEmpty());
        stage.test.user->idleMs = 180001;
        stage.test.core.checkInactivity();
        QVERIFY(!stage.test.core.currentSafe()->isUnlocked());
        QCOMPARE(shownValues(values), QStringList());
    }

private:
    using Check = std::function<QStringList(QWidget &, const Stage &)>;
    /// Brings every window up; false when the check finds something, which is printed.
    bool allPass(const Stage::Look &look, const Check &check)
    {
        QStringList faults;
        for (const WindowCase &shown : everyWindow()) {
            std::unique_ptr<Stage> &stage = m_stages[shown.safe];
            if (!stage)
                stage = std::make_unique<Stage>(shown.safe);
            stage->open(look);
            QWidget *window = shown.show(*stage);
            const QString name = QLatin1String(shown.name);
            if (!window) {
                faults << name + " is not shown"_s;
                continue;
            }
            stage->shrink(*window, shown.narrow);
            // Layouts within layouts settle one turn after the other.
            for (int turn = 0; turn < 5; ++turn)
                QCoreApplication::processEvents();
            for (const QString &fault : check(*window, *stage))
                faults << name + " | "_s + fault;
        }
        // The frame would print the beginning alone, and nothing after so many warnings.
        if (!faults.isEmpty())
            std::fprintf(stderr, "%s\n", qPrintable(faults.join(QLatin1Char('\n'))));
        return faults.isEmpty();
    }

    std::map<Stage::Safe, std::unique_ptr<Stage>> m_stages;
};

QTEST_MAIN(TestEveryWindow)
#include "tst_everywindow.moc"
