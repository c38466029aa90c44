// Change of the password of a safe of 1,000 items with 200 MB of attachments: run by hand, prints
// each figure with its unit.

#include "GPMSafe.h"
#include "HoldWatch.h"
#include "PMAttachment.h"
#include "PMLogin.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

const int logins = 800;
const int attachments = 200;
const int attachmentSize = 1000 * 1000;
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

/// Changes the password, or begins to, and prints how long that took and held the event loop.
void change(GPMSafe &safe, const QString &what, bool cancel)
{
    QEventLoop loop;
    QElapsedTimer whole;
    QElapsedTimer cancelled;
    HoldWatch watch;
    QObject::connect(&safe, &GPMSafe::passwordChangeProgress, &loop, [&](int done, int total) {
        if (!cancel || done < total / 2 || cancelled.isValid())
            return;
        cancelled.start();
        safe.cancelPasswordChange();
    });
    QObject::connect(&safe, &GPMSafe::passwordChangeFinished, &loop, &QEventLoop::quit);
    whole.start();
    watch.start();
    if (!safe.changePasswordAsync(QStringLiteral("another one"), QStringLiteral("hint")))
        qFatal("the change does not begin");
    loop.exec();
    watch.stop();
    if (safe.isPassword(QStringLiteral("another one")) == cancel)
        qFatal("the change did not end as it was to");
    print(what, double(whole.elapsed()) / 1000, "s");
    if (cancel)
        print(QStringLiteral("... from the cancel to the end"), double(cancelled.elapsed()), "ms");
    print(QStringLiteral("... longest hold of the event loop"), watch.longestMs(), "ms");
    print(QStringLiteral("... of which its thread was computing"), watch.computingThenMs(), "ms");
    print(QStringLiteral("... most computing in one turn"), watch.mostComputingMs(), "ms");
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QTemporaryDir folder;
    makeSafe(folder.path());
    GPMSafe safe;
    if (!safe.open(folder.path()) || !safe.unlock(password))
        qFatal("the safe does not open");
    change(safe, QStringLiteral("Change cancelled half way"), true);
    change(safe, QStringLiteral("Change of password"), false);
    return 0;
}
