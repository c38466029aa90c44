#pragma once

#include "Clock.h"
#include "SafeRow.h"
#include "widgets/FramedDialog.h"

#include <QTimer>

#include <functional>

class GPMAppCore;
class QPushButton;
class QScrollArea;

/// Safes of other computers that lie in the cloud folder and that this one does not know.
struct CloudOffers
{
    std::function<int()> count;
    std::function<void()> open; ///< shows them
};

/// The list of all safes, and what can be done with each of them. Sizes and backups come when the
/// folders have answered.
class SafesDialog : public FramedDialog
{
    Q_OBJECT

public:
    SafesDialog(GPMAppCore &core, const CloudOffers &offers, const Theme &theme, QWidget *parent,
                Clock clock = systemTime);

    /// The list is not complete before this is told.
    bool isReading() const { return m_details.isReading(); }

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
    SafeDetailsReader m_details;
    QTimer m_showing; ///< many answers, one picture
};
