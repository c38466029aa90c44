#include "FindingRow.h"

#include "PasswordStrength.h"
#include "main/ExpiryText.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/Tile.h"

#include <QLocale>

namespace {

const int tileSize = 34;
const int rowHeight = 56;

QString reusedText(const HealthFinding &finding)
{
    if (finding.others == 1)
        return FindingRow::tr("The same password as %1").arg(finding.otherTitle);
    return FindingRow::tr("The same password as %1 and %n more", nullptr, finding.others - 1)
        .arg(finding.otherTitle);
}

} // namespace

QString findingText(const HealthFinding &finding, const QDate &today)
{
    switch (finding.problem) {
    case HealthProblem::Weak:
        return FindingRow::tr("%1 · %2").arg(passwordStrengthLabel(finding.level),
                                             passwordPartsText(finding.parts));
    case HealthProblem::Reused:
        return reusedText(finding);
    case HealthProblem::Old:
        return FindingRow::tr("Nothing changed since %1")
            .arg(QLocale().toString(finding.date, QLocale::ShortFormat));
    case HealthProblem::Insecure:
        return FindingRow::tr("The address begins with http: others can read along");
    case HealthProblem::Expiring:
        return expiryText(finding.date, today);
    }
    return {};
}

QUrl changePasswordPage(const QString &address)
{
    QUrl page(address.trimmed());
    const bool web =
        page.scheme() == QStringLiteral("https") || page.scheme() == QStringLiteral("http");
    if (!web || page.host().isEmpty())
        return {};
    page.setUserInfo({});
    page.setQuery(QString());
    page.setFragment({});
    page.setPath(QStringLiteral("/.well-known/change-password"));
    return page;
}

FindingRow::FindingRow(const HealthFinding &finding, const PMListItem &item, const QDate &today,
                       const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_ignore(makeButton(finding.ignored ? tr("Stop ignoring") : tr("Ignore"), "plain", this))
{
    setFixedHeight(Style::scaled(rowHeight));
    auto *tile = new Tile(tileSize, theme, this);
    tile->setItem(item.title(), item.type());
    auto *title = new ElidedLabel("itemTitle", this);
    title->setFullText(item.title());
    auto *reason = new ElidedLabel("muted", this);
    reason->setObjectName(QStringLiteral("findingText"));
    reason->setFullText(findingText(finding, today));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addStretch();
    texts->addWidget(title);
    texts->addWidget(reason);
    texts->addStretch();

    m_ignore->setObjectName(QStringLiteral("ignoreButton"));
    m_ignore->setAccessibleName(tr("%1: %2").arg(m_ignore->text(), item.title()));
    auto *change = makeButton(tr("Change it…"), "primary", this);
    change->setObjectName(QStringLiteral("changeButton"));
    change->setAccessibleName(tr("%1: %2").arg(change->text(), item.title()));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Style::gap, 0, Style::gap, 0);
    row->setSpacing(Style::spacing);
    row->addWidget(tile);
    row->addSpacing(4);
    row->addLayout(texts, 1);
    const QUrl page = changePasswordPage(item.url());
    if (!page.isEmpty() && finding.problem != HealthProblem::Insecure &&
        finding.problem != HealthProblem::Expiring) {
        auto *open = makeIconButton(theme.icon(QStringLiteral("external-link"), Palette::Text),
                                    tr("Open the site's page for a new password"), "framed", this);
        open->setObjectName(QStringLiteral("changePageButton"));
        connect(open, &QToolButton::clicked, this, [this, page] { Q_EMIT pageRequested(page); });
        row->addWidget(open);
    }
    row->addWidget(m_ignore);
    row->addWidget(change);
    connect(m_ignore, &QPushButton::clicked, this, &FindingRow::ignoreToggled);
    connect(change, &QPushButton::clicked, this, &FindingRow::changeRequested);
}
