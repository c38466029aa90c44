// Speed of quick access with many items: run by hand on the offscreen platform, prints each figure
// with its unit.

#include "GPMAppCore.h"
#include "PMCreditCard.h"
#include "PMFieldTypes.h"
#include "PMLogin.h"
#include "PMUiProvider.h"
#include "style/Style.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <unistd.h>

#include <algorithm>

namespace {

const int itemCount = 10000;
const int openings = 40;

void printAll(const char *what, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const auto print = [what](const char *which, double value) {
        const QString name = QLatin1String(what) + QLatin1String(", ") + QLatin1String(which);
        QTextStream(stdout) << name.leftJustified(66)
                            << QString::number(value, 'f', 2).rightJustified(9) << " ms"
                            << Qt::endl;
    };
    print("median", times[times.size() / 2]);
    print("longest", times.back());
}

GPMAppCore::Places places(const QString &folder)
{
    GPMAppCore::Places places;
    places.configFolder = folder + QStringLiteral("/config");
    places.dataFolder = folder + QStringLiteral("/data");
    places.hiddenFolder = folder + QStringLiteral("/hidden");
    return places;
}

/// Counts the paintings of widgets.
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

/// The milliseconds until what an action caused is painted.
double paintedAfter(const QList<QWidget *> &widgets, const std::function<void()> &act)
{
    PaintCounter painted(widgets);
    QElapsedTimer timer;
    timer.start();
    act();
    while (painted.count == 0) {
        QCoreApplication::processEvents();
        if (timer.elapsed() > 5000)
            qFatal("nothing is painted");
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
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
        item->setUrl(QStringLiteral("https://www.site%1.example/login").arg(i));
        item->setNote(
            QStringLiteral("A line or two that somebody wrote about it. Café %1.").arg(i));
        item->setUseCount(i % 50);
        PMListItem *added = safe.addItem(std::move(item));
        // They are not to be written: 20,000 keys take minutes to derive.
        added->markSaved(added->revision());
    }
}

void idle(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

void press(QWidget &widget, int key, const QString &text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &event);
}

void measure(GPMAppCore &core)
{
    const auto open = [&core](int site) {
        QuickAccessWish wish;
        wish.url = QStringLiteral("https://www.site%1.example/login").arg(site);
        Q_EMIT core.requestQuickAccess(wish);
    };
    const auto find = [] {
        QWidget *found = nullptr;
        for (QWidget *top : QApplication::topLevelWidgets()) {
            if (top->objectName() == QLatin1String("quickAccess"))
                found = top;
        }
        if (!found)
            qFatal("no quick access");
        return found;
    };
    QWidget &window = *find();
    auto *list = window.findChild<QListView *>(QStringLiteral("quickList"));
    auto *search = window.findChild<QLineEdit *>(QStringLiteral("quickSearch"));
    const QList<QWidget *> shown{list->viewport()};
    const auto opened = [&](int site) {
        const double time = paintedAfter(shown, [&] { open(site); });
        idle(50);
        window.hide();
        idle(50);
        return time;
    };
    printAll("the first opening", {opened(7)});
    std::vector<double> same;
    std::vector<double> other;
    std::vector<double> used;
    for (int i = 0; i < openings; ++i) {
        same.push_back(opened(7));
        other.push_back(opened(100 + i));
        opened(7);
        PMListItem *item = core.currentSafe()->items()[static_cast<std::size_t>(i * 37)];
        item->setUseCount(item->useCount() + 1);
        item->markSaved(item->revision());
        idle(20);
        used.push_back(opened(7));
    }
    printAll("opening for the same page", same);
    printAll("opening for another page", other);
    printAll("opening after an item was used", used);
    open(7);
    idle(100);
    std::vector<double> keys;
    for (const char *text : {"harbour", "person123", "cafe 77", "z"}) {
        for (const QChar c : QString(QLatin1String(text)))
            keys.push_back(paintedAfter({list->viewport(), list->parentWidget()}, [&] {
                press(*search, c.toUpper().unicode(), QString(c));
            }));
        search->clear();
        idle(20);
    }
    printAll("a key stroke to the painted list", keys);
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
    GPMAppCore core(places(folder.path()));
    PMUiProvider provider(core, [] { return true; });
    provider.connectCore();
    provider.createMainWindow();
    provider.openMainView({});
    if (!core.createSafe(QStringLiteral("Bench"), QStringLiteral("a master password"),
                         QStringLiteral("none")))
        qFatal("can't make a safe");
    fill(*core.currentSafe());
    idle(2000);
    measure(core);
    fflush(stdout);
    // Without the rest: nothing is to be written.
    _exit(0);
}
