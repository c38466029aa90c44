#include "EveryWindow.h"
#include "WindowChecks.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

/// Walks over every window of the program, in both themes, all languages and several text sizes.
class TestEveryWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsAreSeen();
    void keyboardAndNames_data() { addWindows(); }
    void keyboardAndNames();
    void contrast_data() { addWindows(); }
    void contrast();
    void textsFit_data() { addWindows(); }
    void textsFit();

private:
    static void addWindows();
    std::unique_ptr<QWidget> makeWindow();
    Stage &stage(Stage::Safe safe);

    std::map<Stage::Safe, std::unique_ptr<Stage>> m_stages;
};

namespace {

/// The faults of one setting, each with its name before it.
QStringList below(const QString &setting, const QStringList &faults)
{
    QStringList named;
    for (const QString &fault : faults)
        named << setting + QStringLiteral(" | ") + fault;
    return named;
}

} // namespace

void TestEveryWindow::addWindows()
{
    QTest::addColumn<int>("number");
    for (int i = 0; i < everyWindow().size(); ++i)
        QTest::newRow(everyWindow().at(i).name) << i;
}

Stage &TestEveryWindow::stage(Stage::Safe safe)
{
    std::unique_ptr<Stage> &stage = m_stages[safe];
    if (!stage)
        stage = std::make_unique<Stage>(safe);
    return *stage;
}

std::unique_ptr<QWidget> TestEveryWindow::makeWindow()
{
    QFETCH(int, number);
    const WindowCase &shown = everyWindow().at(number);
    std::unique_ptr<QWidget> window = shown.make(stage(shown.safe));
    window->resize(window->minimumSize().expandedTo(window->minimumSizeHint()));
    // Layouts within layouts settle one turn after the other.
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    return window;
}

void TestEveryWindow::faultsAreSeen()
{
    QWidget window;
    window.resize(300, 200);
    auto *unnamed = new QToolButton(&window);
    unnamed->setIcon(QIcon(QStringLiteral(":/splash.png")));
    unnamed->setFocusPolicy(Qt::StrongFocus);
    auto *trap = new QPlainTextEdit(&window);
    trap->setAccessibleName(QStringLiteral("Note"));
    trap->setGeometry(0, 100, 100, 40);
    auto *narrow = new QLabel(QStringLiteral("A text that is longer than its place"), &window);
    narrow->setGeometry(0, 40, 40, 20);
    auto *outside = new QPushButton(QStringLiteral("Save"), &window);
    outside->setGeometry(280, 60, 100, 40);
    auto *pale = new QLabel(QStringLiteral("Pale"), &window);
    pale->setGeometry(0, 70, 100, 20);
    pale->setStyleSheet(QStringLiteral("background: #ffffff; color: #cccccc;"));
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const auto tells = [](const QStringList &faults, const char *part) {
        return !faults.filter(QLatin1String(part)).isEmpty();
    };
    QVERIFY(tells(WindowChecks::nameFaults(window), "has no name"));
    QVERIFY(tells(WindowChecks::tabFaults(window), "Tab does not get out"));
    QVERIFY(tells(WindowChecks::clippingFaults(window), "longer than its place"));
    QVERIFY(tells(WindowChecks::clippingFaults(window), "reaches out"));
    QVERIFY(tells(WindowChecks::contrastFaults(window), "Pale"));
}

void TestEveryWindow::keyboardAndNames()
{
    const std::unique_ptr<QWidget> window = makeWindow();
    const QStringList faults = WindowChecks::nameFaults(*window) + WindowChecks::tabFaults(*window);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestEveryWindow::contrast()
{
    QStringList faults;
    for (const bool dark : {false, true}) {
        for (auto &stage : m_stages)
            stage.second->theme.setDark(dark);
        const std::unique_ptr<QWidget> window = makeWindow();
        faults += below(dark ? QStringLiteral("dark") : QStringLiteral("light"),
                        WindowChecks::contrastFaults(*window));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestEveryWindow::textsFit()
{
    QStringList faults;
    Theme &theme = stage(Stage::Filled).theme;
    for (const int percent : {90, 150, 100}) {
        theme.setTextPercent(percent);
        const std::unique_ptr<QWidget> window = makeWindow();
        faults += below(QStringLiteral("en, %1 %").arg(percent),
                        WindowChecks::clippingFaults(*window));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QTEST_MAIN(TestEveryWindow)
#include "tst_everywindow.moc"
