// Speed of the synchronisation of a safe with its mirror: run by hand, prints each figure with its
// unit.

#include "GPMSafe.h"
#include "PMAttachment.h"
#include "PMLogin.h"
#include "SafeLayout.h"
#include "SyncRound.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QUuid>

#include <algorithm>
#include <chrono>
#include <future>

namespace {

const int items = 10000;
const int rounds = 5;
const QString password = QStringLiteral("a master password of some length");

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
}

/// Files on both sides and the record of them. A round with nothing changed looks into none, so
/// that they need not be encrypted.
void makeSides(const SafeFolder &safe, const SafeFolder &mirror)
{
    SyncRecord record;
    const QByteArray bytes(1200, 'x');
    for (int i = 0; i < items; ++i) {
        const QString name =
            QStringLiteral("content/") + QUuid::createUuid().toString(QUuid::WithoutBraces);
        const QString local = safe.root() + QLatin1Char('/') + name;
        const QString other = mirror.root() + QLatin1Char('/') + name;
        write(local, bytes);
        write(other, bytes);
        record.files.insert(name, {hashOf(bytes), *stampOf(local), *stampOf(other), 1});
    }
    write(safe.path(SafeLayout::syncRecord), record.toJson());
}

SyncResult run(const SafeFolder &safe, const SafeFolder &mirror, WorkControl &control)
{
    SyncRound sync({SafeEnvironment(), safe,
                    std::make_shared<const SecretBytes>(SecretBytes::fromText(password)),
                    std::make_shared<QMutex>()},
                   mirror.root());
    return sync.run(control);
}

double millisecondsSince(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double round(const SafeFolder &safe, const SafeFolder &mirror)
{
    QElapsedTimer timer;
    timer.start();
    WorkControl control;
    const SyncResult result = run(safe, mirror, control);
    if (result.state != SyncState::Done || result.sent > 0 || !result.taken.isEmpty())
        qFatal("the round has found something to do");
    return millisecondsSince(timer);
}

/// A real safe of 1,000 items with 200 MB of attachments meets an empty mirror. Tells, too, how
/// long somebody waits who interrupts that to save.
void meetFirst(const SafeFolder &safe, const SafeFolder &mirror)
{
    QDir().mkpath(safe.root());
    SyncMirror::enableSynchronization(*SafeEnvironment().files, mirror.root());
    {
        GPMSafe made;
        if (!made.init(safe.root(), password, QStringLiteral("Bench"), {}))
            qFatal("can't make the safe");
        const QByteArray bytes(2000000, 'x');
        for (int i = 0; i < 1000; ++i) {
            if (i % 10 != 0) {
                made.addItem(std::make_unique<PMLogin>());
                continue;
            }
            QBuffer content;
            content.setData(bytes);
            content.open(QIODevice::ReadOnly);
            made.addAttachment(std::make_unique<PMAttachment>(), content);
        }
        if (!made.saveChanges())
            qFatal("can't save the safe");
    }
    QElapsedTimer timer;
    QVector<double> waits;
    int meetings = 0;
    double total = 0;
    for (SyncState state = SyncState::Cancelled; state == SyncState::Cancelled; ++meetings) {
        WorkControl control;
        auto meeting = std::async(std::launch::async, [&] {
            QElapsedTimer own;
            own.start();
            const SyncState end = run(safe, mirror, control).state;
            total += millisecondsSince(own);
            return end;
        });
        if (meetings < 10 &&
            meeting.wait_for(std::chrono::milliseconds(300)) != std::future_status::ready) {
            timer.start();
            control.cancel();
            meeting.wait();
            waits.append(millisecondsSince(timer));
        }
        state = meeting.get();
    }
    std::sort(waits.begin(), waits.end());
    QTextStream(stdout) << "first meeting of 1,000 items with 200 MB, interrupted " << waits.size()
                        << " times: " << QString::number(total, 'f', 0)
                        << " ms; who interrupts waits "
                        << QString::number(waits.value(waits.size() / 2), 'f', 1)
                        << " ms (median, slowest "
                        << QString::number(waits.value(waits.size() - 1), 'f', 1) << " ms)"
                        << Qt::endl;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    const QTemporaryDir place;
    const SafeFolder safe(place.filePath(QStringLiteral("safe")));
    const SafeFolder mirror(place.filePath(QStringLiteral("mirror")));
    QDir().mkpath(safe.root());
    QDir().mkpath(mirror.path(SafeLayout::content));
    {
        GPMSafe made;
        if (!made.init(safe.root(), password, QStringLiteral("Bench"), {}))
            qFatal("can't make the safe");
    }
    makeSides(safe, mirror);
    round(safe, mirror); // writes description and pass id
    QVector<double> times;
    for (int i = 0; i < rounds; ++i)
        times.append(round(safe, mirror));
    std::sort(times.begin(), times.end());
    QTextStream(stdout) << "round of synchronisation with nothing changed, 10,000 items: "
                        << QString::number(times[rounds / 2], 'f', 1) << " ms (median of " << rounds
                        << ", slowest " << QString::number(times.last(), 'f', 1) << " ms)"
                        << Qt::endl;
    meetFirst(SafeFolder(place.filePath(QStringLiteral("second"))),
              SafeFolder(place.filePath(QStringLiteral("second mirror"))));
    return 0;
}
