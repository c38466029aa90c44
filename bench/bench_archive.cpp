// Export and import of a safe of 1,000 items with 200 MB of attachments, beside `zip -r` and
// `unzip` on the same files: run by hand, prints each figure with its unit.

#include "ArchiveTask.h"
#include "GPMSafe.h"
#include "HoldWatch.h"
#include "KnownSafes.h"
#include "PMAttachment.h"
#include "PMLogin.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>

namespace {

const int logins = 800;
const int attachments = 200;
const int attachmentSize = 1000 * 1000;
const int rounds = 5;
const QString password = QStringLiteral("a master password of some length");

void print(const QString &what, double value, const char *unit)
{
    QTextStream(stdout) << what.leftJustified(66)
                        << QString::number(value, 'f', 2).rightJustified(9) << ' '
                        << QLatin1String(unit) << Qt::endl;
}

void makeSafe(const QString &folder)
{
    GPMSafe safe;
    if (!safe.init(folder, password, QStringLiteral("Bench"), QStringLiteral("none")))
        qFatal("can't make the safe");
    for (int i = 0; i < logins; ++i) {
        auto login = std::make_unique<PMLogin>();
        login->setTitle(QStringLiteral("Site number %1").arg(i));
        login->setUrl(QStringLiteral("https://www.site%1.example.org/login").arg(i));
        login->setPassword(QStringLiteral("Secret %1 of this site!").arg(i));
        safe.addItem(std::move(login));
    }
    QByteArray bytes(attachmentSize, Qt::Uninitialized);
    for (int i = 0; i < attachments; ++i) {
        QRandomGenerator::global()->fillRange(reinterpret_cast<quint32 *>(bytes.data()),
                                              attachmentSize / 4);
        QBuffer device(&bytes);
        device.open(QIODevice::ReadOnly);
        if (!safe.addAttachment(std::make_unique<PMAttachment>(), device))
            qFatal("can't add an attachment");
    }
    if (!safe.saveChanges())
        qFatal("can't save the safe");
}

double secondsOf(const QString &program, const QStringList &arguments, const QString &folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

/// Runs a task as the program does and watches how long the event loop was ever held.
double secondsOf(ArchiveTask &task, HoldWatch &watch)
{
    QEventLoop loop;
    QObject::connect(&task, &ArchiveTask::finished, &loop, &QEventLoop::quit);
    watch.start();
    QElapsedTimer timer;
    timer.start();
    task.start();
    loop.exec();
    watch.stop();
    if (!task.result().good())
        qFatal("export or import failed");
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

double median(QVector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

void compare(const char *what, const QVector<double> &ours, const QVector<double> &theirs,
             const char *tool)
{
    const QString name = QLatin1String(what);
    print(name + QStringLiteral(", median of %1").arg(ours.size()), median(ours), "s");
    print(QLatin1String(tool) + QStringLiteral(" on the same files, median"), median(theirs), "s");
    print(name + QStringLiteral(" in relation to it"), median(ours) / median(theirs), "times");
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type != QtDebugMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
    const QTemporaryDir home;
    const QString folder = home.filePath(QStringLiteral("safe"));
    QDir().mkpath(folder);
    makeSafe(folder);
    GPMAppSettings settings(home.filePath(QStringLiteral("config")), home.path());
    KnownSafes known(settings, home.filePath(QStringLiteral("safes")));
    GPMSafe safe;
    if (!safe.open(folder))
        qFatal("can't open the safe");

    const QString archive = home.filePath(QStringLiteral("ours.gpm"));
    const QString theirs = home.filePath(QStringLiteral("theirs.zip"));
    const QString unpacked = home.filePath(QStringLiteral("unpacked"));
    QVector<double> exports, imports, zips, unzips;
    HoldWatch hold;
    for (int i = 0; i < rounds; ++i) {
        QFile::remove(archive);
        QFile::remove(theirs);
        exports.append(secondsOf(*safe.exportArchive(archive), hold));
        zips.append(secondsOf(
            QStringLiteral("zip"),
            {QStringLiteral("-q"), QStringLiteral("-r"), theirs, QStringLiteral(".")}, folder));
        const auto import = known.importArchive(archive);
        imports.append(secondsOf(*import, hold));
        QDir(import->result().path).removeRecursively();
        unzips.append(secondsOf(QStringLiteral("unzip"),
                                {QStringLiteral("-q"), archive, QStringLiteral("-d"), unpacked},
                                home.path()));
        QDir(unpacked).removeRecursively();
    }
    compare("exporting 1,000 items with 200 MB", exports, zips, "zip -r");
    compare("importing them", imports, unzips, "unzip");
    print(QStringLiteral("size of the archive"),
          static_cast<double>(QFileInfo(archive).size()) / 1e6, "MB");
    print(QStringLiteral("longest hold of the event loop meanwhile"), hold.longestMs(), "ms");
    print(QStringLiteral("... of which its thread was computing"), hold.computingThenMs(), "ms");
    print(QStringLiteral("most computing in one turn"), hold.mostComputingMs(), "ms");
    return 0;
}
