// Speed of moving in and out with many items, and how long the event loop is held meanwhile: run by
// hand on the offscreen platform, prints each figure with its unit.

#include "GPMAppCore.h"
#include "ItemExportTask.h"
#include "PMFieldTypes.h"
#include "main/MainView.h"
#include "movein/MoveInDialog.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTextStream>

#include <ctime>

namespace {

const int rowCount = 10000;

void print(const char *what, double value, const char *unit)
{
    QTextStream(stdout) << QString::fromLatin1(what).leftJustified(66)
                        << QString::number(value, 'f', 2).rightJustified(9) << ' '
                        << QLatin1String(unit) << Qt::endl;
}

double threadMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Remembers the event that took longest, in milliseconds of the processor: the machine may do
/// other things as well.
class TimedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        const bool isOuter = m_depth++ == 0;
        const double before = isOuter ? threadMs() : 0;
        const bool taken = QApplication::notify(receiver, event);
        --m_depth;
        if (isOuter)
            longest = qMax(longest, threadMs() - before);
        return taken;
    }

    double longest = 0;

private:
    int m_depth = 0;
};

GPMAppCore::Places places(const QString &folder)
{
    GPMAppCore::Places places;
    places.configFolder = folder + QStringLiteral("/config");
    places.dataFolder = folder + QStringLiteral("/data");
    places.hiddenFolder = folder + QStringLiteral("/hidden");
    return places;
}

template <typename Done>
void measure(TimedApplication &application, const char *what, const std::function<void()> &act,
             const Done &isDone)
{
    QElapsedTimer timer;
    timer.start();
    application.longest = 0;
    const double before = threadMs();
    act();
    const double acting = threadMs() - before;
    while (!isDone())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    print(what, static_cast<double>(timer.elapsed()) / 1e3, "s");
    print("  longest turn of the event loop, processor time", qMax(acting, application.longest),
          "ms");
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_LOGGING_RULES", "*=false");
    TimedApplication application(argc, argv);
    PMFieldTypes::registerMetaTypes();
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("passwords.csv"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return 1;
    file.write("name,url,username,password,note\n");
    for (int i = 0; i < rowCount; ++i)
        file.write(QStringLiteral("Site %1,https://www.site%1.example/login,user%1@example.org,"
                                  "q7V<m2X;8Rz!K%1,\"a note, %1\"\n")
                       .arg(i)
                       .toUtf8());
    file.close();

    GPMAppCore core(places(folder.path()));
    Theme theme;
    theme.apply();
    MainView view(core, theme);
    QObject::connect(&core, &GPMAppCore::safeLockedChanged, &view, [&](bool locked) {
        if (!locked)
            view.openSafe(core.currentSafe());
    });
    if (!core.createSafe(QStringLiteral("Bench"), QStringLiteral("master password 1"), {}))
        return 1;
    view.resize(1080, 680);
    view.show();
    MoveInDialog dialog({core}, theme, nullptr);
    dialog.show();
    auto *add = dialog.findChild<QPushButton *>(QStringLiteral("addButton"));
    const auto *end = dialog.findChild<QPushButton *>(QStringLiteral("closeMoveInButton"));

    measure(
        application, "10,000 rows: chosen to previewed", [&] { dialog.readFile(path); },
        [add] { return add->isVisible(); });
    measure(
        application, "  select none and all again",
        [&] {
            for (const char *name : {"selectNoneButton", "selectAllButton"})
                dialog.findChild<QPushButton *>(QLatin1String(name))->click();
        },
        [] { return true; });
    measure(
        application, "  added and on the disk", [add] { add->click(); },
        [end] { return end->isVisible(); });
    QTextStream(stdout) << dialog.findChild<QLabel *>(QStringLiteral("moveInTitle"))->text()
                        << Qt::endl;
    measure(
        application, "  looked at again: all are there", [&] { dialog.readFile(path); },
        [&] { return dialog.findChild<QPushButton *>(QStringLiteral("addButton"))->isVisible(); });

    bool written = false;
    ItemExportTask out(core.currentSafe(), ItemExportTask::idsOf(*core.currentSafe()),
                       ItemExport::Json, folder.filePath(QStringLiteral("out.json")),
                       std::make_shared<FileLayer>());
    QObject::connect(&out, &ItemExportTask::finished, [&written] { written = true; });
    measure(
        application, "  exported to JSON", [&out] { out.start(); }, [&written] { return written; });
    print("  size of the file",
          double(QFileInfo(folder.filePath(QStringLiteral("out.json"))).size()) / 1e6, "MB");
    return 0;
}
