#pragma once

#include "BackupJob.h"
#include "BackupOverview.h"
#include "Clock.h"

#include <QFutureWatcher>
#include <QWidget>

class Backups;
class GPMAppSettings;
class KnownSafes;
class MessageLabel;
class QLabel;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

/// How backups stand, on the page of the settings about them: when the last one was made, of each
/// safe, and when the next is due; makes one now, and leads to those that can be restored.
class BackupRow : public QWidget
{
    Q_OBJECT

public:
    /// What it tells of; all of it outlives the row.
    struct Parts
    {
        Backups &backups;
        const GPMAppSettings &settings;
        const KnownSafes &safes;
        Clock clock = systemTime;
    };

    BackupRow(const Parts &parts, QWidget *parent);
    ~BackupRow() override;

Q_SIGNALS:
    void restoreRequested();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool event(QEvent *event) override;

private:
    void layOut();
    void follow();
    void read();
    void showState();
    void showSafes();
    void showProgress(qint64 done, qint64 total);
    void showReport(const QVector<BackupJob::Result> &results);
    void backUpOrCancel();

    Parts m_parts;
    QLabel *m_headline;
    QLabel *m_next;
    MessageLabel *m_placeFault;
    QLabel *m_safes;
    QProgressBar *m_progress;
    MessageLabel *m_report;
    QPushButton *m_run;
    QPushButton *m_restore;
    QFutureWatcher<BackupOverview> m_reading;
    BackupOverview m_overview;
    bool m_known = false; ///< the overview was read once
};
