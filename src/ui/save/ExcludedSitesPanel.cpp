#include "ExcludedSitesPanel.h"

#include "LoginSaving.h"
#include "style/Style.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"

#include <QListWidget>

namespace {

const int shownRows = 4;
const int rowHeight = 32;

} // namespace

ExcludedSitesPanel::ExcludedSitesPanel(LoginSaving &saving, QWidget *parent)
    : QWidget(parent)
    , m_saving(saving)
    , m_none(makeLabel(tr("None. “Never for this site” puts one here."), "muted", this))
    , m_list(new QListWidget(this))
    , m_remove(makeButton(tr("Ask again"), "plain", this))
    , m_message(new MessageLabel(this))
{
    m_list->setObjectName(QStringLiteral("excludedSites"));
    m_list->setAccessibleName(tr("Sites without an offer"));
    m_remove->setObjectName(QStringLiteral("askAgainButton"));
    m_message->setObjectName(QStringLiteral("excludedSitesMessage"));
    m_message->setWordWrap(true);
    m_none->setWordWrap(true);
    auto *what =
        makeLabel(tr("Logins that you type in there are not offered to be saved."), "muted", this);
    what->setWordWrap(true);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(Style::spacing);
    all->addWidget(makeLabel(tr("Sites without an offer"), "plain", this));
    all->addWidget(what);
    all->addWidget(m_none);
    all->addWidget(m_list);
    all->addWidget(m_remove, 0, Qt::AlignLeft);
    all->addWidget(m_message);
    m_message->hide();
    connect(&saving, &LoginSaving::excludedSitesChanged, this, &ExcludedSitesPanel::showSites);
    connect(m_remove, &QPushButton::clicked, this, &ExcludedSitesPanel::remove);
    showSites();
}

void ExcludedSitesPanel::showSites()
{
    const int row = m_list->currentRow();
    m_list->clear();
    m_list->addItems(m_saving.excludedSites());
    const int count = m_list->count();
    m_list->setCurrentRow(qBound(0, row, count - 1));
    m_list->setFixedHeight(Style::scaled(rowHeight) * qBound(1, count, shownRows) + 8);
    m_list->setVisible(count > 0);
    m_remove->setVisible(count > 0);
    m_none->setVisible(count == 0);
}

void ExcludedSitesPanel::remove()
{
    const QListWidgetItem *site = m_list->currentItem();
    if (!site)
        return;
    const bool done = m_saving.includeAgain(site->text());
    m_message->setVisible(!done);
    m_message->setMessage(done ? QString()
                               : tr("The list could not be written. Check the free space and the "
                                    "permissions of the settings folder."));
}
