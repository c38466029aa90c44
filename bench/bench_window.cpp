// Speed, memory and idle load of the main window with many items: run by hand on the offscreen
// platform, prints each figure with its unit.

#include "GPMAppCore.h"
#include "ItemHealth.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "PMLogin.h"
#include "PMUiProvider.h"
#include "lock/SecureWindow.h"
#include "main/EmptyState.h"
#include "main/MainView.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QProcess>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <ctime>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>

namespace {

const int itemCount = 10000;

void print(const char *what, double value, const char *unit)
{
    QTextStream(stdout) << QString::fromLatin1(what).leftJustified(66)
                        << QString::number(value, 'f', 2).rightJustified(9) << ' '
                        << QLatin1String(unit) << Qt::endl;
}

double processorMs()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto ms = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return ms(usage.ru_utime) + ms(usage.ru_stime);
}

/// Resident memory in MiB.
double memory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS"))
            return line.mid(line.indexOf(':') + 1).simplified().split(' ').first().toDouble() /
                   1024;
    }
    return 0;
}

GPMAppCore::Places places(const QString &folder)
{
    GPMAppCore::Places places;
    places.configFolder = folder + QStringLiteral("/config");
    places.dataFolder = folder + QStringLiteral("/data");
    places.hiddenFolder = folder + QStringLiteral("/hidden");
    return places;
}

/// Counts the paintings of the list, or of what stands in its place when it is empty.
class PaintCounter : public QObject
{
public:
    explicit PaintCounter(const QList<QWidget *> &widgets)
    {
        for (QWidget *widget : widgets)
            widget->installEventFilter(this);
    }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }
};

/// Milliseconds on the clock, and those in which the processor worked for this thread: on a machine
/// that does other things as well the second figure is the one to compare.
struct Times
{
    double clock = 0;
    double processor = 0;
};

double threadMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The time until what an action caused is painted.
Times paintedAfter(const QList<QWidget *> &widgets, const std::function<void()> &act)
{
    PaintCounter painted(widgets);
    const double before = threadMs();
    QElapsedTimer timer;
    timer.start();
    act();
    while (painted.count == 0) {
        QCoreApplication::processEvents();
        if (timer.elapsed() > 5000)
            qFatal("nothing is painted");
    }
    return {static_cast<double>(timer.nsecsElapsed()) / 1e6, threadMs() - before};
}

void print(const char *what, const Times &times)
{
    const QByteArray name(what);
    print(what, times.clock, "ms");
    print((name + ", processor time").constData(), times.processor, "ms");
}

void printAll(const char *what, std::vector<Times> times)
{
    const QByteArray name(what);
    std::sort(times.begin(), times.end(),
              [](const Times &a, const Times &b) { return a.clock < b.clock; });
    print((name + ", median").constData(), times[times.size() / 2].clock, "ms");
    print((name + ", longest").constData(), times.back().clock, "ms");
    std::sort(times.begin(), times.end(),
              [](const Times &a, const Times &b) { return a.processor < b.processor; });
    print((name + ", median processor time").constData(), times[times.size() / 2].processor, "ms");
    print((name + ", longest processor time").constData(), times.back().processor, "ms");
}

void fill(GPMSafe &safe)
{
    const char *const words[] = {"Alpine",  "Bank",   "Cloud",   "Design",  "Every",   "Ferry",
                                 "Harbour", "Island", "Journal", "Kitchen", "Library", "Museum"};
    for (int i = 0; i < itemCount; ++i) {
        std::unique_ptr<PMListItem> item;
        if (i % 20 == 0) {
            auto card = std::make_unique<PMCreditCard>();
            card->setNumber(QStringLiteral("4111 1111 1111 1111"));
            card->setExpire({2027 + i % 9, 1 + i % 12, 0});
            item = std::move(card);
        } else {
            auto login = std::make_unique<PMLogin>();
            login->setLogin(QStringLiteral("person%1@example.org").arg(i % 700));
            login->setPassword(QStringLiteral("Secret %1 of this site!").arg(i % 9000));
            item = std::move(login);
        }
        item->setTitle(QStringLiteral("%1 %2 number %3")
                           .arg(QLatin1String(words[i % 12]), QLatin1String(words[i / 12 % 12]))
                           .arg(i));
        item->setSecondaryText(QStringLiteral("person%1@example.org").arg(i % 700));
        item->setUrl(QStringLiteral("https://www.site%1.example.org/login").arg(i));
        item->setNote(
            QStringLiteral("A line or two that somebody wrote about it. Café %1.").arg(i));
        item->setUseCount(i % 50);
        PMListItem *added = safe.addItem(std::move(item));
        // They are not to be written: 20,000 keys take minutes to derive.
        added->markSaved(added->revision());
    }
}

void type(QLineEdit &field, const QList<QWidget *> &shown, const QString &text,
          std::vector<Times> &times)
{
    for (const QChar c : text) {
        times.push_back(paintedAfter(shown, [&] {
            QKeyEvent press(QEvent::KeyPress, c.toUpper().unicode(), Qt::NoModifier, QString(c));
            QCoreApplication::sendEvent(&field, &press);
        }));
    }
    for (int i = 0; i < text.size(); ++i) {
        times.push_back(paintedAfter(shown, [&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Backspace, Qt::NoModifier);
            QCoreApplication::sendEvent(&field, &press);
        }));
    }
}

void idle(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

void measureHealth(const GPMAppCore &core)
{
    ItemListModel items;
    items.setSafe(core.currentSafe());
    ItemHealth health(items);
    QEventLoop loop;
    QElapsedTimer sinceTick;
    qint64 longest = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout, [&] {
        longest = std::max(longest, sinceTick.nsecsElapsed());
        sinceTick.restart();
    });
    QObject::connect(&health, &ItemHealth::changed, &loop, &QEventLoop::quit);
    ticks.start(0);
    sinceTick.start();
    QElapsedTimer whole;
    whole.start();
    health.start();
    loop.exec();
    print("looking at the health of 10,000 items", static_cast<double>(whole.elapsed()), "ms");
    print("longest hold of the event loop meanwhile", static_cast<double>(longest) / 1e6, "ms");
    whole.restart();
    const double before = threadMs();
    const QVector<HealthFinding> findings = health.findings();
    print("listing what was found",
          {static_cast<double>(whole.nsecsElapsed()) / 1e6, threadMs() - before});
    if (findings.isEmpty())
        qFatal("nothing was found");
}

void measureWindow(const QString &folder)
{
    GPMAppCore core(places(folder));
    Theme theme;
    theme.apply();
    auto *view = new MainView(core, theme);
    SecureWindow window(core, theme, view);
    window.show();
    if (!core.createSafe(QStringLiteral("Bench"), QStringLiteral("a master password"),
                         QStringLiteral("none")))
        qFatal("can't make a safe");
    GPMSafe &safe = *core.currentSafe();
    fill(safe);
    auto *list = view->findChild<QListView *>(QStringLiteral("itemList"));
    auto *search = view->findChild<QLineEdit *>(QStringLiteral("searchField"));
    const QList<QWidget *> shown{list->viewport(), view->findChild<EmptyState *>()};
    idle(1000);
    print("resident memory with 10,000 items open", memory(), "MiB");
    std::vector<Times> openings;
    for (int i = 0; i < 7; ++i) {
        view->closeSafe();
        idle(100);
        openings.push_back(paintedAfter(shown, [&] { view->openSafe(core.currentSafe()); }));
        idle(300);
    }
    printAll("showing 10,000 items when a safe opens", openings);
    idle(500);

    std::vector<Times> keys;
    for (const char *text : {"harbour", "person123", "cafe 77", "site9", "z"})
        type(*search, shown, QLatin1String(text), keys);
    search->setText(QStringLiteral("kind:"));
    idle(100);
    type(*search, shown, QStringLiteral("card al"), keys);
    printAll("a key stroke in the search to the painted list", keys);

    auto *title = view->findChild<QWidget *>(QStringLiteral("itemTitle"));
    std::vector<Times> pages;
    for (int i = 1; i < 10; ++i) {
        idle(100);
        pages.push_back(paintedAfter({title}, [&] { search->setText(QString::number(1111 * i)); }));
    }
    search->clear();
    printAll("a search to the painted page of its first item", pages);

    std::vector<Times> scrolls;
    QScrollBar &bar = *list->verticalScrollBar();
    for (int step = 1; step <= 300; ++step)
        scrolls.push_back(paintedAfter(
            shown, [&] { bar.setValue(step % 2 ? bar.maximum() - step * 40 : step * 900); }));
    printAll("a jump in the list to the painted list", scrolls);

    QAction *byWebSite = nullptr;
    for (QAction *action : view->findChildren<QAction *>()) {
        if (action->text() == QStringLiteral("Web site"))
            byWebSite = action;
    }
    print("another order of the list", paintedAfter(shown, [&] { byWebSite->trigger(); }));
    print("selecting all", paintedAfter(shown, [&] { list->selectAll(); }));
    idle(2000);
    const double before = processorMs();
    const int idleMs = 20000;
    idle(idleMs);
    print("idle load with the safe open", (processorMs() - before) / idleMs * 100, "% of a core");
    measureHealth(core);
    print("locking them, with nothing to save",
          paintedAfter({&window}, [&] { core.lockCurrentSafe(); }));
    print("resident memory at the end", memory(), "MiB");
    fflush(stdout);
    // Without the rest: nothing is to be written.
    _exit(0);
}

/// Processor time from the start of the process to the painted page that unlocks a safe.
void measureStart(const QString &folder)
{
    GPMAppCore core(places(folder));
    PMUiProvider provider(core, [] { return true; });
    provider.connectCore();
    provider.createMainWindow();
    provider.openMainView(QStringLiteral("show"));
    paintedAfter({provider.mainWindow()}, [] {});
    // One more turn, for what the painting has brought about.
    QCoreApplication::processEvents();
    print("processor time from the start to the painted lock page", processorMs(), "ms");
    fflush(stdout);
    _exit(0);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    PMFieldTypes::registerMetaTypes();
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
    const int font = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/SG-R.TTF"));
    QApplication::setFont(
        {QFontDatabase::applicationFontFamilies(font).value(0), Style::basePointSize()});
    const QTemporaryDir folder;
    if (QApplication::arguments().contains(QStringLiteral("--start")))
        measureStart(folder.path());
    for (int run = 0; run < 5; ++run) {
        QProcess start;
        start.setProcessChannelMode(QProcess::ForwardedChannels);
        start.start(QApplication::applicationFilePath(), {QStringLiteral("--start")});
        start.waitForFinished();
    }
    measureWindow(folder.path());
    return 0;
}
