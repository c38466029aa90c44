#include "ItemPane.h"

#include "EmptyState.h"
#include "GPMAppCore.h"
#include "ItemFooter.h"
#include "ItemPage.h"
#include "PMLogin.h"
#include "TrashCopy.h"
#include "attachments/AttachmentActions.h"
#include "attachments/AttachmentsCard.h"
#include "drafts/DraftDocument.h"
#include "editor/SafeItemEditor.h"
#include "style/Theme.h"

#include <QBoxLayout>
#include <QStackedWidget>

#include <utility>

ItemPane::ItemPane(GPMAppCore &core, const Theme &theme, Asker asker, QWidget *parent)
    : QWidget(parent)
    , m_core(core)
    , m_theme(theme)
    , m_asker(std::move(asker))
    , m_stack(new QStackedWidget(this))
    , m_empty(new EmptyState(theme, this))
    , m_page(new ItemPage(core.settings(), theme, this))
    , m_attachments(new AttachmentActions(core, theme, m_asker, this))
    , m_card(new AttachmentsCard(core, *m_attachments, theme, this))
    , m_editor(new SafeItemEditor(core.settings(), theme, this))
    , m_footer(new ItemFooter(core.clipboard(), theme, this))
{
    setObjectName(QStringLiteral("itemPane"));
    setAttribute(Qt::WA_StyledBackground);
    m_stack->addWidget(m_empty);
    m_stack->addWidget(m_page);
    m_stack->addWidget(m_editor);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_stack, 1);
    all->addWidget(m_footer);
    m_empty->setContent(QStringLiteral("layout-grid"), tr("No items selected"),
                        tr("Choose an item on the left, or press Ctrl+N to add one."));
    connect(m_editor, &SafeItemEditor::modifiedChanged, this, &ItemPane::showButtons);
    connect(m_editor, &SafeItemEditor::modifiedChanged, this, &ItemPane::edited);
    connect(m_editor, &SafeItemEditor::itemGone, this, &ItemPane::drop);
    connect(m_editor, &SafeItemEditor::copyRequested, m_page, &ItemPage::copyRequested);
    connect(m_editor, &SafeItemEditor::openRequested, m_page, &ItemPage::openRequested);
    connect(m_editor, &SafeItemEditor::generatorRequested, this, &ItemPane::generatorRequested);
    connect(m_page, &ItemPage::editRequested, this, &ItemPane::startEdit);
    connect(m_page, &ItemPage::generatorRequested, this, &ItemPane::editPassword);
    connect(m_page, &ItemPage::fillTypeChosen, this, &ItemPane::setFillType);
    connect(m_footer, &ItemFooter::removeRequested, this,
            [this] { Q_EMIT removeRequested(currentId()); });
    connect(m_footer, &ItemFooter::restoreRequested, this,
            [this] { Q_EMIT restoreRequested(currentId()); });
    connect(m_footer, &ItemFooter::discardRequested, this, &ItemPane::discard);
    connect(m_footer, &ItemFooter::saveRequested, this, &ItemPane::save);
    connectAttachments();
    showNothing();
}

void ItemPane::connectAttachments()
{
    m_page->setBelowFields(m_card);
    m_card->acceptDropsOn(m_page);
    connect(m_page, &ItemPage::fieldsShown, this, &ItemPane::orderFocus);
    connect(m_card, &AttachmentsCard::focusPartsChanged, this, &ItemPane::orderFocus);
    connect(m_card, &AttachmentsCard::removeRequested, this, &ItemPane::removeRequested);
    // What stands for itself is shown like any new item.
    connect(m_attachments, &AttachmentActions::added, this, [this](const QString &id) {
        if (isEditing())
            return;
        showItem(m_core.currentSafe()->item(id));
        Q_EMIT saved(id);
    });
}

void ItemPane::orderFocus()
{
    QWidget *before = m_page->lastFocus();
    const QVector<QWidget *> parts = m_card->focusParts();
    for (QWidget *part : parts) {
        setTabOrder(before, part);
        before = part;
    }
}

void ItemPane::paste()
{
    if (!isEditing())
        m_card->paste();
}

ItemPane::~ItemPane()
{
    // A new item goes before the editor does, which would call back.
    m_editor->disconnect(this);
    m_editor->setItem(nullptr, false);
}

void ItemPane::showItem(const PMListItem *item)
{
    closeEditor();
    m_page->setItem(item);
    m_card->setItem(item);
    m_stack->setCurrentWidget(item ? static_cast<QWidget *>(m_page) : m_empty);
    showButtons();
}

QString ItemPane::shownId() const
{
    return m_page->item() ? m_page->item()->id() : QString();
}

bool ItemPane::canEdit() const
{
    const PMListItem *item = m_page->item();
    return item && !item->deleted();
}

void ItemPane::startNew(PMListItem::Type type)
{
    if (type == PMListItem::Attachment) {
        chooseAttachment();
        return;
    }
    closeEditor();
    m_newItem = m_core.modelCreateItem(type);
    m_editor->setItem(m_newItem.get(), true);
    showEditor();
}

void ItemPane::chooseAttachment()
{
    if (!m_attachments->chooseAndAttach({}))
        m_asker({tr("New attachment"), tr("Please choose a file"), {tr("OK")}});
}

void ItemPane::startEdit()
{
    if (isEditing() || !canEdit())
        return;
    m_editedId = shownId();
    m_baseModified = m_page->item()->modified();
    m_editor->setItem(m_page->item(), false);
    showEditor();
}

void ItemPane::showEditor()
{
    m_stack->setCurrentWidget(m_editor);
    // New fields come last for Tab; the buttons below belong behind them.
    QWidget *before = m_editor->lastFocus();
    const QVector<QWidget *> buttons = m_footer->editorButtons();
    for (QWidget *button : buttons) {
        setTabOrder(before, button);
        before = button;
    }
    Q_EMIT editStarted(m_editedId);
    m_editor->takeFocus();
    showButtons();
}

void ItemPane::editPassword()
{
    startEdit();
    m_editor->requestGenerator();
}

void ItemPane::setFillType(PMFieldTypes::LoginFillType type)
{
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    auto *login = safe ? qobject_cast<PMLogin *>(safe->item(shownId())) : nullptr;
    if (!login || isEditing())
        return;
    login->setFillType(type);
    m_core.modelItemChanged(login->id());
}

std::optional<KeptDraft> ItemPane::draft() const
{
    if (!isEditing() || !m_editor->isModified())
        return std::nullopt;
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    const PMListItem *item = m_newItem ? m_newItem.get() : safe->item(m_editedId);
    if (!item)
        return std::nullopt;
    KeptDraft kept = keptDraft(*item, m_editor->draft());
    if (!m_newItem)
        kept.baseModified = m_baseModified;
    return kept;
}

void ItemPane::continueDraft(const KeptDraft &draft, const PMListItem *item)
{
    showItem(item);
    if (item) {
        m_editedId = item->id();
        m_baseModified = item->modified();
        m_editor->setItem(item, false, &draft);
    } else {
        const std::unique_ptr<PMListItem> kept = itemOfDraft(draft);
        m_newItem = m_core.modelCreateItem(kept->type());
        // What no editor shows. The bytes of an attachment lie under its id.
        if (draft.isNew && !m_core.currentSafe()->item(kept->id()))
            m_newItem->setId(kept->id());
        m_newItem->setFavorite(kept->favorite());
        m_newItem->setRefs(kept->refs());
        m_newItem->setUnknownKeys(kept->unknownKeys());
        m_editor->setItem(m_newItem.get(), true, &draft);
    }
    showEditor();
}

void ItemPane::letGo(const QString &id)
{
    const PMListItem *item = id == m_editedId ? m_core.currentSafe()->item(id) : nullptr;
    if (!item || !m_editor->isModified())
        return;
    const QString title = item->title();
    KeptDraft kept = keptDraft(*item, m_editor->draft());
    // Under the id of the old one it would count as deleted.
    kept.isNew = false;
    continueDraft(kept, nullptr);
    Q_EMIT edited();
    Q_EMIT editedItemGone(title);
}

void ItemPane::keepLivingReferences(PMListItem &item) const
{
    QStringList living;
    const QStringList references = item.refs();
    for (const QString &id : references) {
        if (m_core.currentSafe()->item(id))
            living.append(id);
    }
    item.setRefs(living);
}

bool ItemPane::isEditing() const
{
    return m_newItem || !m_editedId.isEmpty();
}

bool ItemPane::refuseSaving()
{
    const ItemDraft &draft = m_editor->draft();
    if (!draft.hasEmptyRequired() && !draft.hasUnreadable())
        return false;
    // What is wrong otherwise is said below its row and can be saved: the value is the user's.
    const QString text = draft.hasEmptyRequired()
                             ? tr("There are empty required values.\nFill and try again.")
                             : tr("There are values that are no date or no number.\n"
                                  "Correct them and try again.");
    m_editor->showFaults();
    m_asker({tr("Can't save changes."), text, {tr("OK")}});
    return true;
}

bool ItemPane::save()
{
    if (!isEditing() || refuseSaving())
        return false;
    QString id = m_editedId;
    // From here on the editor must not take the item's going for a loss.
    const ItemDraft draft = m_editor->draft();
    m_editor->setItem(nullptr, false);
    m_editedId.clear();
    if (m_newItem) {
        draft.writeTo(*m_newItem);
        keepLivingReferences(*m_newItem);
        PMListItem *added = m_core.modelAddItem(std::move(m_newItem));
        id = added ? added->id() : QString();
    } else if (PMListItem *item = m_core.currentSafe()->item(id)) {
        draft.writeTo(*item);
        // Who saves it wants it, although another computer moved it to the trash meanwhile.
        takeOutOfTrash(*item);
        m_core.modelItemChanged(id);
    }
    const std::shared_ptr<GPMSafe> &safe = m_core.currentSafe();
    showItem(safe ? safe->item(id) : nullptr);
    Q_EMIT saved(id);
    return true;
}

void ItemPane::discard()
{
    if (!isEditing())
        return;
    drop();
    Q_EMIT discarded();
}

void ItemPane::drop()
{
    closeEditor();
    m_stack->setCurrentWidget(m_page->item() ? static_cast<QWidget *>(m_page) : m_empty);
    showButtons();
}

void ItemPane::closeEditor()
{
    const bool editing = isEditing();
    m_editor->setItem(nullptr, false);
    m_newItem.reset();
    m_editedId.clear();
    if (editing)
        Q_EMIT editEnded();
}

bool ItemPane::mayLeave()
{
    if (!isEditing())
        return true;
    if (!m_editor->isModified()) {
        drop();
        return true;
    }
    const bool empty = m_editor->draft().hasEmptyRequired();
    const int answer =
        m_asker({tr("The object has been modified"),
                 empty ? tr("There are empty required fields. What would you like to do?")
                       : tr("You have not saved changes yet"),
                 {tr("Save"), tr("Discard changes"), tr("Continue editing")}});
    // The safe may have been locked while the question was open.
    if (!isEditing())
        return false;
    if (answer == 0)
        return save();
    if (answer == 1)
        drop();
    return answer == 1;
}

QString ItemPane::currentId() const
{
    return isEditing() ? m_editedId : shownId();
}

void ItemPane::showButtons()
{
    const bool editing = isEditing();
    const PMListItem *item = m_page->item();
    m_footer->setState({editing, currentId().isEmpty(), item && item->deleted() && !editing});
    m_footer->setVisible(editing || item);
}
