#pragma once

#include "ItemHealth.h"
#include "widgets/FramedDialog.h"

#include <array>

class EmptyState;
class HealthTile;
class QLabel;
class QPushButton;
class QScrollArea;
class QUrl;

/// Lists what is wrong with the items of the open safe, one kind of problem at a time.
class HealthDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// The health and the items have to outlive the window.
    HealthDialog(ItemHealth &health, const ItemListModel &items, const Theme &theme,
                 QWidget *parent, Clock clock = systemTime);

    HealthProblem shownProblem() const { return m_problem; }
    void showProblem(HealthProblem problem);

    /// Shows what is known by now.
    void refresh();

Q_SIGNALS:
    /// The item's editor is to be opened.
    void changeRequested(const QString &id);
    void pageRequested(const QUrl &page);
    /// Something is noted with items that is to be saved.
    void ignoredChanged();

private:
    void makeTiles();
    void layOut();
    void showFindings();
    void showState(int found, int ignored);
    void addRow(QWidget &list, const HealthFinding &finding);
    void toggle(const HealthFinding &finding);

    ItemHealth &m_health;
    const ItemListModel &m_items;
    const Theme &m_theme;
    Clock m_clock;
    std::array<HealthTile *, healthProblemCount> m_tiles{};
    QScrollArea *m_scroll;
    EmptyState *m_empty;
    QLabel *m_progress;
    QPushButton *m_ignored;
    QPushButton *m_more;
    QVector<HealthFinding> m_findings;
    HealthProblem m_problem = HealthProblem::Weak;
    bool m_showsIgnored = false;
    int m_limit;
};
