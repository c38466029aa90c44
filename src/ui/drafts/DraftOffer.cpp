#include "DraftOffer.h"

#include "DraftDocument.h"
#include "DraftKeeper.h"
#include "GPMSafe.h"
#include "main/ItemPane.h"
#include "main/NoticeBanner.h"

#include <QDir>
#include <QPushButton>

#include <algorithm>
#include <utility>

namespace {

QString titleOf(const KeptDraft &draft)
{
    const QString title = draft.document.publicFields.value(QStringLiteral("title")).toString();
    return title.isEmpty() ? DraftOffer::tr("an item without a title")
                           : DraftOffer::tr("“%1”").arg(title);
}

} // namespace

DraftOffer::DraftOffer(ItemPane &pane, DraftKeeper &keeper, const Theme &theme, Asker asker,
                       QWidget *view)
    : QObject(view)
    , m_pane(pane)
    , m_keeper(keeper)
    , m_asker(std::move(asker))
    , m_banner(new NoticeBanner(QStringLiteral("pencil"), theme, view))
{
    m_banner->setObjectName(QStringLiteral("draftBanner"));
    m_continue = m_banner->addButton(tr("Continue editing"), "primary", "continueDraftButton");
    m_discard = m_banner->addButton(tr("Discard"), "plain", "discardDraftButton");
    connect(m_continue, &QPushButton::clicked, this, &DraftOffer::continueFirst);
    connect(m_discard, &QPushButton::clicked, this, &DraftOffer::discardFirst);
}

void DraftOffer::openSafe(const std::shared_ptr<GPMSafe> &safe)
{
    m_safe = safe;
    connect(&safe->drafts(), &DraftStore::loaded, this, &DraftOffer::onLoaded,
            Qt::UniqueConnection);
    safe->drafts().loadAsync();
}

void DraftOffer::closeSafe()
{
    if (m_safe) {
        m_safe->disconnect(this);
        m_safe->drafts().disconnect(this);
    }
    m_safe.reset();
    m_drafts.clear();
    m_unreadable.clear();
    m_banner->dismiss();
}

bool DraftOffer::isOffering(const QString &key) const
{
    return std::any_of(m_drafts.begin(), m_drafts.end(),
                       [&key](const KeptDraft &draft) { return draft.key == key; });
}

const PMListItem *DraftOffer::itemOf(const KeptDraft &draft) const
{
    const QString id = draft.document.publicFields.value(QStringLiteral("id")).toString();
    const PMListItem *item = m_safe ? m_safe->item(id) : nullptr;
    return item && item->type() == draft.document.type ? item : nullptr;
}

void DraftOffer::onLoaded(const QVector<KeptDraft> &drafts, const QStringList &unreadable)
{
    for (const KeptDraft &draft : drafts) {
        if (draft.key == m_keeper.key() || isOffering(draft.key))
            continue;
        const PMListItem *item = itemOf(draft);
        const bool held = item && !item->deleted() && holdsDraft(*item, draft);
        // Not on the disk yet, and the disk may be full.
        if (held && item->isChanged())
            continue;
        // Saved in the last moment, or kept twice: nothing is left to continue.
        const bool twice =
            std::any_of(m_drafts.begin(), m_drafts.end(), [&draft](const KeptDraft &other) {
                return holdsDraft(*other.document.toItem(), draft);
            });
        if (held || twice)
            m_safe->drafts().remove(draft.key);
        else
            m_drafts.append(draft);
    }
    m_unreadable = unreadable;
    showNext();
}

void DraftOffer::showNext()
{
    if (!m_drafts.isEmpty())
        showDraft(m_drafts.first());
    else if (!m_unreadable.isEmpty())
        showUnreadable();
    else
        m_banner->dismiss();
}

void DraftOffer::showDraft(const KeptDraft &draft)
{
    const PMListItem *item = itemOf(draft);
    const QString heading = draft.isNew ? tr("You were adding %1 when the safe locked.")
                                        : tr("You were editing %1 when the safe locked.");
    QString text = tr("What you had typed was kept, encrypted, and is not saved yet.");
    if (!draft.isNew && !item)
        text = tr("The item was deleted meanwhile. What you had typed can become a new item.");
    else if (item && item->deleted())
        text = tr("The item is in the trash now. What you had typed was kept.");
    else if (item && item->modified() != draft.baseModified)
        text = tr("The item was changed meanwhile. What you had typed was kept.");
    m_continue->setVisible(true);
    m_discard->setText(tr("Discard"));
    m_banner->tell(heading.arg(titleOf(draft)), text);
}

void DraftOffer::showUnreadable()
{
    m_continue->setVisible(false);
    m_discard->setText(tr("Delete the file"));
    m_banner->tell(tr("An edit that was kept could not be read."),
                   tr("Its file is damaged or belongs to another password, and was left as it "
                      "is:\n%1")
                       .arg(QDir::toNativeSeparators(m_unreadable.first())));
}

DraftOffer::Way DraftOffer::chooseWay(const KeptDraft &draft) const
{
    const PMListItem *item = itemOf(draft);
    if (!item)
        return Way::AsNew;
    const bool trashed = item->deleted();
    if (!trashed && item->modified() == draft.baseModified)
        return Way::OnItem;
    const QString text =
        trashed ? tr("%1 is in the trash. What would you like to do with what you had typed?")
                : tr("%1 was changed after you had begun. What would you like to do with what you "
                     "had typed?");
    QStringList buttons{tr("Continue as a new item"), tr("Cancel")};
    if (!trashed)
        buttons.prepend(tr("Replace the change"));
    const int answer = m_asker({tr("Continue editing"), text.arg(titleOf(draft)), buttons,
                                static_cast<int>(buttons.size()) - 2});
    if (answer < 0 || answer >= buttons.size() - 1)
        return Way::Cancel;
    return trashed || answer == 1 ? Way::AsNew : Way::OnItem;
}

void DraftOffer::continueFirst()
{
    if (m_drafts.isEmpty() || !m_pane.mayLeave() || m_drafts.isEmpty())
        return;
    const KeptDraft draft = m_drafts.first();
    const Way way = chooseWay(draft);
    // The safe may have been locked while the question was open.
    if (way == Way::Cancel || !isOffering(draft.key))
        return;
    m_drafts.removeFirst();
    showNext();
    const PMListItem *item = way == Way::OnItem ? itemOf(draft) : nullptr;
    m_pane.continueDraft(draft, item);
    m_keeper.setKey(draft.key);
    Q_EMIT continued(item ? item->id() : QString());
}

void DraftOffer::discardFirst()
{
    if (m_drafts.isEmpty()) {
        if (m_unreadable.isEmpty())
            return;
        if (!QFile::remove(m_unreadable.first()))
            qWarning() << "DraftOffer: Can't remove draft file:" << m_unreadable.first();
        m_unreadable.removeFirst();
        showNext();
        return;
    }
    const KeptDraft draft = m_drafts.first();
    const int answer =
        m_asker({tr("Confirmation"),
                 tr("Do you want to discard what you had typed about %1?\nIt can not be restored.")
                     .arg(titleOf(draft)),
                 {tr("Discard"), tr("Cancel")},
                 1});
    if (answer != 0 || !isOffering(draft.key))
        return;
    m_safe->drafts().remove(draft.key);
    m_drafts.removeFirst();
    showNext();
}
