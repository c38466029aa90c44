#include "HealthDialog.h"

#include "FindingRow.h"
#include "HealthTile.h"
#include "main/EmptyState.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace {

const int usualRows = 50;
const QSize usualSize(660, 500);

} // namespace

HealthDialog::HealthDialog(ItemHealth &health, const ItemListModel &items, const Theme &theme,
                           QWidget *parent, Clock clock)
    : FramedDialog(tr("Health"), theme, parent)
    , m_health(health)
    , m_items(items)
    , m_theme(theme)
    , m_clock(std::move(clock))
    , m_scroll(makeScrollArea(this))
    , m_empty(new EmptyState(theme, this))
    , m_progress(makeLabel({}, "muted", this))
    , m_ignored(makeButton({}, "link", this))
    , m_more(makeButton({}, "link", this))
    , m_limit(usualRows)
{
    setObjectName(QStringLiteral("healthDialog"));
    resize(usualSize);
    m_progress->setObjectName(QStringLiteral("healthProgress"));
    m_ignored->setObjectName(QStringLiteral("ignoredButton"));
    m_more->setObjectName(QStringLiteral("moreButton"));
    m_scroll->setObjectName(QStringLiteral("findingList"));
    m_scroll->setAccessibleName(tr("Findings"));
    layOut();
    connect(m_ignored, &QPushButton::clicked, this, [this] {
        m_showsIgnored = !m_showsIgnored;
        showFindings();
    });
    connect(m_more, &QPushButton::clicked, this, [this] {
        m_limit += usualRows;
        showFindings();
    });
    connect(&health, &ItemHealth::changed, this, &HealthDialog::refresh);
    health.start();
    refresh();
    showProblem(HealthProblem::Weak);
}

void HealthDialog::makeTiles()
{
    struct Kind
    {
        QString text;
        const char *icon;
        Palette::Role color;
    };
    // In the order of HealthProblem.
    const Kind kinds[] = {{tr("Weak"), "alert-triangle", Palette::Terrible},
                          {tr("Reused"), "copy", Palette::Weak},
                          {tr("Older than 2 years"), "clock", Palette::Muted},
                          {tr("Not on https"), "lock-open", Palette::Weak},
                          {tr("Expiring"), "calendar-event", Palette::Weak}};
    for (std::size_t i = 0; i < m_tiles.size(); ++i) {
        const Kind &kind = kinds[i];
        auto *tile = new HealthTile(kind.text, QLatin1String(kind.icon), kind.color, m_theme, this);
        tile->setObjectName(QStringLiteral("healthTile%1").arg(i));
        connect(tile, &HealthTile::clicked, this,
                [this, i] { showProblem(static_cast<HealthProblem>(i)); });
        m_tiles[i] = tile;
    }
}

void HealthDialog::layOut()
{
    makeTiles();
    auto *tiles = new QHBoxLayout;
    tiles->setSpacing(Style::gap);
    for (HealthTile *tile : m_tiles)
        tiles->addWidget(tile, 1);
    auto *foot = new QHBoxLayout;
    foot->addWidget(m_progress, 1);
    foot->addWidget(m_more);
    foot->addWidget(m_ignored);
    body().addLayout(tiles);
    body().addSpacing(Style::spacing);
    body().addWidget(m_scroll, 1);
    body().addWidget(m_empty, 1);
    body().addLayout(foot);
}

void HealthDialog::showProblem(HealthProblem problem)
{
    m_problem = problem;
    m_limit = usualRows;
    m_showsIgnored = false;
    for (std::size_t i = 0; i < m_tiles.size(); ++i)
        m_tiles[i]->setChecked(static_cast<HealthProblem>(i) == problem);
    showFindings();
    m_scroll->verticalScrollBar()->setValue(0);
}

void HealthDialog::refresh()
{
    m_findings = m_health.findings();
    std::array<int, healthProblemCount> counts{};
    for (const HealthFinding &finding : qAsConst(m_findings)) {
        if (!finding.ignored)
            ++counts[static_cast<std::size_t>(finding.problem)];
    }
    for (std::size_t i = 0; i < counts.size(); ++i)
        m_tiles[i]->setCount(counts[i]);
    showFindings();
}

void HealthDialog::showFindings()
{
    const int ignored = int(
        std::count_if(m_findings.cbegin(), m_findings.cend(), [this](const HealthFinding &finding) {
            return finding.problem == m_problem && finding.ignored;
        }));
    m_showsIgnored = m_showsIgnored && ignored > 0;
    QVector<HealthFinding> shown;
    std::copy_if(m_findings.cbegin(), m_findings.cend(), std::back_inserter(shown),
                 [this](const HealthFinding &finding) {
                     return finding.problem == m_problem && finding.ignored == m_showsIgnored;
                 });
    auto *list = new QWidget;
    list->setObjectName(QStringLiteral("findings"));
    auto *column = new QVBoxLayout(list);
    column->setContentsMargins({});
    column->setSpacing(0);
    for (const HealthFinding &finding : shown.mid(0, m_limit))
        addRow(*list, finding);
    column->addStretch();
    // The keyboard stays at the place where something was done.
    const QList<QPushButton *> before = findChildren<QPushButton *>(QStringLiteral("ignoreButton"));
    const int place = before.indexOf(qobject_cast<QPushButton *>(focusWidget()));
    const int scrolled = m_scroll->verticalScrollBar()->value();
    m_scroll->setWidget(list);
    list->show();
    m_scroll->verticalScrollBar()->setValue(scrolled);
    const QList<QPushButton *> now =
        list->findChildren<QPushButton *>(QStringLiteral("ignoreButton"));
    if (place >= 0 && !now.isEmpty())
        now.at(qMin(place, now.size() - 1))->setFocus();
    showState(shown.size(), ignored);
}

void HealthDialog::showState(int found, int ignored)
{
    const int left = m_health.pending();
    m_progress->setText(left > 0 ? tr("Looking at the items…") : QString());
    m_more->setVisible(found > m_limit);
    m_more->setText(tr("Show more (%1)").arg(found - m_limit));
    m_ignored->setVisible(ignored > 0);
    m_ignored->setText(m_showsIgnored ? tr("Back to what is not ignored")
                                      : tr("Ignored (%1)").arg(ignored));
    m_scroll->setVisible(found > 0);
    m_empty->setVisible(found == 0);
    m_empty->setContent(QStringLiteral("circle-check"), tr("Nothing found"),
                        left > 0 ? tr("Not all items have been looked at yet.") : QString());
}

void HealthDialog::addRow(QWidget &list, const HealthFinding &finding)
{
    const ItemListModel::Entry *entry = m_items.entryOf(finding.itemId);
    if (!entry)
        return;
    auto *row =
        new FindingRow(finding, *entry->item, m_clock().toLocalTime().date(), m_theme, &list);
    list.layout()->addWidget(row);
    connect(row, &FindingRow::ignoreToggled, this, [this, finding] { toggle(finding); });
    connect(row, &FindingRow::changeRequested, this,
            [this, finding] { Q_EMIT changeRequested(finding.itemId); });
    connect(row, &FindingRow::pageRequested, this, &HealthDialog::pageRequested);
}

void HealthDialog::toggle(const HealthFinding &finding)
{
    const ItemListModel::Entry *entry = m_items.entryOf(finding.itemId);
    if (!entry)
        return;
    // The change is looked at, and the list made anew, when the button has done its work.
    setHealthIgnored(*entry->item, finding.problem, !finding.ignored);
    Q_EMIT ignoredChanged();
}
