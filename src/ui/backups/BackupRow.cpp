#include "BackupRow.h"

#include "BackupTexts.h"
#include "Backups.h"
#include "style/Style.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QProgressBar>

namespace {

const int steps = 1000;

} // namespace

BackupRow::BackupRow(const Parts &parts, QWidget *parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_headline(makeLabel({}, "plain", this))
    , m_next(makeLabel({}, "muted", this))
    , m_placeFault(new MessageLabel(this))
    , m_safes(makeLabel({}, "muted", this))
    , m_progress(new QProgressBar(this))
    , m_report(new MessageLabel(this))
    , m_run(makeButton({}, "plain", this))
    , m_restore(makeButton(tr("Restore from a backup…"), "plain", this))
{
    setObjectName(QStringLiteral("backupRow"));
    m_headline->setObjectName(QStringLiteral("backupHeadline"));
    m_next->setObjectName(QStringLiteral("backupNext"));
    m_placeFault->setObjectName(QStringLiteral("backupPlaceFault"));
    m_safes->setObjectName(QStringLiteral("backupSafes"));
    m_progress->setObjectName(QStringLiteral("backupProgress"));
    m_report->setObjectName(QStringLiteral("backupReport"));
    m_run->setObjectName(QStringLiteral("backUpNowButton"));
    m_restore->setObjectName(QStringLiteral("restoreFromButton"));
    m_progress->setTextVisible(false);
    m_progress->setAccessibleName(tr("Backing up"));
    for (QLabel *label : {m_headline, m_next, m_safes})
        label->setWordWrap(true);
    // Names of safes are not ours.
    for (QLabel *label : {m_safes, static_cast<QLabel *>(m_report)})
        label->setTextFormat(Qt::PlainText);
    layOut();
    follow();
    if (!m_parts.backups.lastResults().isEmpty())
        showReport(m_parts.backups.lastResults());
    showState();
    read();
}

BackupRow::~BackupRow()
{
    m_parts.backups.setShown(false);
}

void BackupRow::layOut()
{
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_headline);
    texts->addWidget(m_next);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addWidget(m_run);
    buttons->addWidget(m_restore);
    buttons->addStretch();
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::spacing);
    all->addLayout(texts);
    all->addWidget(m_placeFault);
    all->addWidget(m_safes);
    all->addWidget(m_progress);
    all->addWidget(m_report);
    all->addLayout(buttons);
    m_report->hide();
    m_placeFault->hide();
}

void BackupRow::follow()
{
    const Backups &backups = m_parts.backups;
    connect(m_run, &QPushButton::clicked, this, &BackupRow::backUpOrCancel);
    connect(m_restore, &QPushButton::clicked, this, &BackupRow::restoreRequested);
    connect(&m_reading, &QFutureWatcherBase::finished, this, [this] {
        m_overview = m_reading.result();
        m_known = true;
        showState();
    });
    connect(&backups, &Backups::started, this, [this] {
        m_report->hide();
        showProgress(0, 0);
        showState();
    });
    connect(&backups, &Backups::progress, this, &BackupRow::showProgress);
    connect(&backups, &Backups::finished, this, [this](const QVector<BackupJob::Result> &results) {
        showReport(results);
        showState();
        read();
    });
    connect(&m_parts.safes, &KnownSafes::changed, this, &BackupRow::read);
    connect(&m_parts.settings, &GPMAppSettings::backupPathChanged, this, &BackupRow::read);
    connect(&m_parts.settings, &GPMAppSettings::enableBackupChanged, this, &BackupRow::showState);
    connect(&m_parts.settings, &GPMAppSettings::backupIntervalChanged, this, &BackupRow::showState);
}

void BackupRow::read()
{
    // A reading that is under way is of what was.
    m_reading.setFuture(m_parts.backups.overview());
}

void BackupRow::backUpOrCancel()
{
    if (m_parts.backups.isRunning()) {
        m_run->setEnabled(false);
        m_next->setText(tr("Cancelling…"));
        m_parts.backups.cancel();
        return;
    }
    if (m_parts.backups.backUpNow())
        return;
    m_report->show();
    setStyleProperty(*m_report, "tone", QStringLiteral("muted"));
    m_report->setMessage(tr("There is no safe to back up yet."));
}

void BackupRow::showState()
{
    const bool running = m_parts.backups.isRunning();
    const QDateTime now = m_parts.clock();
    m_run->setText(running ? tr("Cancel") : tr("Back up now"));
    m_run->setEnabled(true);
    m_progress->setVisible(running);
    if (running)
        m_headline->setText(tr("Backing up…"));
    else
        m_headline->setText(m_known ? BackupTexts::headline(m_overview, now)
                                    : tr("Reading the backups…"));
    m_next->setText(running ? tr("You can go on working.")
                            : BackupTexts::next(m_parts.backups.next(), now));
    const QString fault = m_known ? BackupTexts::placeFault(m_overview) : QString();
    if (fault != m_placeFault->text())
        m_placeFault->setMessage(fault);
    m_placeFault->setVisible(!fault.isEmpty());
    showSafes();
}

void BackupRow::showSafes()
{
    QHash<QString, QString> names;
    const QVector<KnownSafes::Entry> entries = m_parts.safes.entries();
    for (const KnownSafes::Entry &entry : entries)
        names.insert(entry.folder, entry.name);
    QStringList lines;
    for (const BackupOverview::Safe &safe : qAsConst(m_overview.safes)) {
        if (names.contains(safe.folder))
            lines.append(BackupTexts::ofSafe(names.value(safe.folder), safe, m_parts.clock()));
    }
    // The headline tells of one alone.
    m_safes->setText(lines.join(QLatin1Char('\n')));
    m_safes->setVisible(lines.size() > 1);
}

void BackupRow::showProgress(qint64 done, qint64 total)
{
    m_progress->setRange(0, total > 0 ? steps : 0);
    if (total > 0)
        m_progress->setValue(int(double(done) * steps / double(total)));
}

void BackupRow::showReport(const QVector<BackupJob::Result> &results)
{
    const BackupTexts::Report report = BackupTexts::report(results);
    setStyleProperty(*m_report, "tone",
                     report.good ? QStringLiteral("muted") : QStringLiteral("error"));
    m_report->show();
    m_report->setMessage(report.text);
}

void BackupRow::showEvent(QShowEvent *event)
{
    m_parts.backups.setShown(true);
    QWidget::showEvent(event);
}

void BackupRow::hideEvent(QHideEvent *event)
{
    m_parts.backups.setShown(false);
    QWidget::hideEvent(event);
}

bool BackupRow::event(QEvent *event)
{
    // A drive may have been connected, or a file removed, while the user was elsewhere.
    if (event->type() == QEvent::WindowActivate && m_known)
        read();
    return QWidget::event(event);
}
