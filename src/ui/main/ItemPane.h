#pragma once

#include "DraftStore.h"
#include "PMFieldTypes.h"
#include "PMListItem.h"
#include "dialogs/Question.h"
#include "editor/SafeItemEditor.h"

#include <QWidget>

#include <memory>

class AttachmentActions;
class AttachmentsCard;
class EmptyState;
class GPMAppCore;
class ItemFooter;
class ItemPage;
class QStackedWidget;
class Theme;

/// The right side of the main view: nothing, the page of an item, or its editor, above the buttons
/// that belong to it.
class ItemPane : public QWidget
{
    Q_OBJECT

public:
    ItemPane(GPMAppCore &core, const Theme &theme, Asker asker, QWidget *parent);
    ~ItemPane() override;

    /// Shows an item's page; null shows that none is selected.
    void showItem(const PMListItem *item);
    void showNothing() { showItem(nullptr); }
    QString shownId() const;

    void startNew(PMListItem::Type type);
    void startEdit();
    bool isEditing() const;
    /// The id of the item in the editor; empty for a new one.
    QString editedId() const { return m_editedId; }
    bool canEdit() const;

    /// What is edited, to be kept; nothing unless something was changed.
    std::optional<KeptDraft> draft() const;
    /// Edits an item on from what was kept. Null: as a new item.
    void continueDraft(const KeptDraft &draft, const PMListItem *item);

    /// Writes the edited values to the safe. False when they may not be written; the user was told.
    bool save();
    void discard();
    /// Asks about unsaved changes. True when there are none any more: they were saved or discarded.
    bool mayLeave();
    /// An item is about to go, as it was deleted on another computer. What was typed into the
    /// editor of it becomes that of a new item.
    void letGo(const QString &id);
    /// Forgets what is edited without a word.
    void drop();

    ItemPage &page() { return *m_page; }
    AttachmentActions &attachments() { return *m_attachments; }
    /// Attaches what the clipboard holds to the item that is shown.
    void paste();

Q_SIGNALS:
    /// The editor came up for an item; its id is empty for a new one.
    void editStarted(const QString &id);
    /// The edited values are in the safe.
    void saved(const QString &id);
    /// A value was changed in the editor.
    void edited();
    /// The editor lets go of what was edited: it was discarded, or the item has gone.
    void editEnded();
    /// The item in the editor has gone; what was typed is that of a new one now.
    void editedItemGone(const QString &title);
    /// The editor closed without saving.
    void discarded();
    void removeRequested(const QString &id);
    void restoreRequested(const QString &id);
    /// A made password is wanted for a field of the editor.
    void generatorRequested(QObject *owner, const SafeItemEditor::Place &place);

private:
    void showEditor();
    void closeEditor();
    void showButtons();
    bool refuseSaving();
    void connectAttachments();
    void chooseAttachment();
    void orderFocus();
    void editPassword();
    void setFillType(PMFieldTypes::LoginFillType type);
    QString currentId() const;
    void keepLivingReferences(PMListItem &item) const;

    GPMAppCore &m_core;
    const Theme &m_theme;
    Asker m_asker;
    QStackedWidget *m_stack;
    EmptyState *m_empty;
    ItemPage *m_page;
    AttachmentActions *m_attachments;
    AttachmentsCard *m_card;
    SafeItemEditor *m_editor;
    ItemFooter *m_footer;
    std::unique_ptr<PMListItem> m_newItem;
    QString m_editedId;
    QDateTime m_baseModified; ///< when the edited item had last changed as editing began
};
