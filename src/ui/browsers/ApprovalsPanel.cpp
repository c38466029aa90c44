#include "ApprovalsPanel.h"

#include "style/Style.h"
#include "widgets/Controls.h"

#include <functional>
#include <utility>

namespace {

/// Enough of the extension's id to tell profiles apart.
QString shortId(const QString &origin)
{
    return origin.section(QLatin1String("://"), 1).left(8);
}

} // namespace

ApprovalsPanel::ApprovalsPanel(OriginApprovals &approvals, QWidget *parent)
    : QWidget(parent)
    , m_approvals(approvals)
    , m_rows(new QVBoxLayout)
    , m_none(makeLabel(tr("None yet. When one wants to connect, you are asked."), "muted", this))
{
    m_rows->setSpacing(Style::spacing);
    auto *what = makeLabel(tr("Each Firefox profile gives the extension an id of its own, so you "
                              "say which ones may connect."),
                           "muted", this);
    what->setWordWrap(true);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::spacing);
    all->addWidget(makeLabel(tr("Extensions in Firefox"), "plain", this));
    all->addWidget(what);
    all->addLayout(m_rows);
    all->addWidget(m_none);
    connect(&approvals, &OriginApprovals::approvedOne, this, &ApprovalsPanel::showAll);
    connect(&approvals, &OriginApprovals::refusedOne, this, &ApprovalsPanel::showAll);
    showAll();
}

void ApprovalsPanel::showAll()
{
    // A button of theirs may have led here.
    for (QWidget *row : std::exchange(m_shown, {})) {
        row->hide();
        row->deleteLater();
    }
    for (const QString &origin : m_approvals.approved())
        m_shown.append(makeRow(origin, true));
    for (const QString &origin : m_approvals.refused())
        m_shown.append(makeRow(origin, false));
    for (QWidget *row : qAsConst(m_shown))
        m_rows->addWidget(row);
    m_none->setVisible(m_shown.isEmpty());
}

QWidget *ApprovalsPanel::makeRow(const QString &origin, bool approved)
{
    auto *row = new QWidget(this);
    auto *line = new QHBoxLayout(row);
    line->setContentsMargins({});
    const QString id = shortId(origin);
    line->addWidget(
        makeLabel(approved ? tr("%1: may connect").arg(id) : tr("%1: may not connect").arg(id),
                  "plain", row),
        1);
    auto *button = makeButton(approved ? tr("Remove") : tr("Allow"), "plain", row);
    button->setObjectName(approved ? QStringLiteral("removeApproval")
                                   : QStringLiteral("giveApproval"));
    button->setAccessibleName(approved ? tr("Remove %1").arg(id) : tr("Allow %1").arg(id));
    const auto decide = approved ? &OriginApprovals::refuse : &OriginApprovals::approve;
    connect(button, &QPushButton::clicked, &m_approvals, std::bind(decide, &m_approvals, origin));
    line->addWidget(button);
    return row;
}
