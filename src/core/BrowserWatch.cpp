#include "BrowserWatch.h"

#include <QProcess>
#include <QtConcurrent>

#include <utility>

namespace {

bool isAlike(const QVector<BrowserInfo> &a, const QVector<BrowserInfo> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const BrowserInfo &one, const BrowserInfo &other) {
                          return one.kind == other.kind && one.executable == other.executable &&
                                 one.extensionVersion == other.extensionVersion &&
                                 one.isDefault == other.isDefault;
                      });
}

} // namespace

BrowserWatch::BrowserWatch(BrowserPlaces places, QStringList defaultBrowserCommand,
                           std::chrono::milliseconds limit, QObject *parent)
    : QObject(parent)
    , m_places(std::move(places))
    , m_command(std::move(defaultBrowserCommand))
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(limit);
    connect(&m_search, &QFutureWatcherBase::finished, this, &BrowserWatch::end);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        if (m_process)
            m_process->kill();
    });
}

BrowserWatch::~BrowserWatch()
{
    if (m_process) {
        m_process->disconnect(this);
        m_process->kill();
        m_process->waitForFinished(100);
    }
    m_search.waitForFinished();
}

void BrowserWatch::look()
{
    if (std::exchange(m_isLooking, true))
        return;
    m_search.setFuture(
        QtConcurrent::run([places = m_places] { return BrowserDiscovery::find(places); }));
    if (!m_places.isWindows)
        askForDefault();
}

void BrowserWatch::askForDefault()
{
    m_process = std::make_unique<QProcess>();
    const auto done = [this] {
        m_limit.stop();
        m_defaultKind = BrowserDiscovery::kindOfDesktopFile(
            QString::fromUtf8(m_process->readAllStandardOutput()).trimmed());
        m_process.release()->deleteLater(); // its own signal led here
        end();
    };
    connect(m_process.get(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            done);
    connect(m_process.get(), &QProcess::errorOccurred, this, [done](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            done();
    });
    m_limit.start();
    m_process->start(m_command.first(), m_command.mid(1), QIODevice::ReadOnly);
}

void BrowserWatch::end()
{
    if (!m_isLooking || m_process || !m_search.isFinished())
        return;
    m_isLooking = false;
    QVector<BrowserInfo> found = m_search.result();
    for (BrowserInfo &browser : found)
        browser.isDefault = browser.isDefault || browser.kind == m_defaultKind;
    const bool isNew = !std::exchange(m_hasLooked, true) || !isAlike(found, m_browsers);
    m_browsers = found;
    if (isNew)
        Q_EMIT changed();
}
