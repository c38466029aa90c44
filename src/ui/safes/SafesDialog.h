#pragma once

#include "Clock.h"
#include "SafeRow.h"
#include "WorkerTask.h"
#include "widgets/FramedDialog.h"

#include <functional>
#include <memory>

class GPMAppCore;
class QPushButton;
class QScrollArea;

/// Safes of other computers that lie in the cloud folder and that this one does not know.
struct CloudOffers
{
    std::function<int()> count;
    std::function<void()> open; ///< shows them
};

/// The list of all safes, and what can be done with each of them. Sizes and backups are looked at
/// on a worker, which stops when the window closes.
class SafesDialog : public FramedDialog
{
    Q_OBJECT

public:
    SafesDialog(GPMAppCore &core, const CloudOffers &offers, const Theme &theme, QWidget *parent,
                Clock clock = systemTime);

    /// The list is not complete before this is told.
    bool isReading() const { return m_reading != nullptr; }

public Q_SLOTS:
    /// Shows what is known by now and looks at the folders anew.
    void refresh();
    /// Shows whether there are safes in the cloud folder.
    void showOffers();

Q_SIGNALS:
    void commanded(SafeRow::Command command, const SafeInfo &safe);
    void createRequested();
    void importRequested();
    void openFolderRequested();
    void read();

private:
    void layOut();
    void showRows();
    QVector<SafeInfo> safes() const;
    void startReading();
    void select(SafeRow *row);
    void step(SafeRow *from, int rows);

    GPMAppCore &m_core;
    CloudOffers m_offers;
    const Theme &m_theme;
    Clock m_clock;
    QScrollArea *m_scroll;
    QPushButton *m_cloud;
    QVector<SafeRow *> m_rows;
    QString m_selected; ///< folder
    QVector<SafeDetails> m_details;
    std::unique_ptr<WorkerTask> m_reading;
};
