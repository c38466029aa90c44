#pragma once

#include "FieldInput.h"
#include "ItemDraft.h"

#include <functional>

struct KeptDraft;
class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// Edits the fields of one item of any kind. The values stay in its draft until someone writes
/// them.
class SafeItemEditor : public QWidget
{
    Q_OBJECT

public:
    /// Puts a made password into a field, if that is still being edited.
    using Place = std::function<void(const QString &password)>;

    SafeItemEditor(const GPMAppSettings &settings, const Theme &theme, QWidget *parent);

    /// Shows an item's fields; it is only watched, not changed. The empty item is null.
    /// @param kept what an earlier edit had made of it; null for none
    void setItem(const PMListItem *item, bool isNew, const KeptDraft *kept = nullptr);
    const ItemDraft &draft() const { return m_draft; }
    bool isModified() const { return m_draft.isModified(); }

    /// Puts the keyboard into the title.
    void takeFocus();
    /// What Tab reaches last.
    QWidget *lastFocus() const;
    /// Asks for a made password for the item's password field, if it has one.
    void requestGenerator();
    /// Says below each row what is wrong with it, and puts the keyboard into the first such row.
    void showFaults();

Q_SIGNALS:
    void modifiedChanged();
    /// The item was destroyed while its fields were edited.
    void itemGone();
    void copyRequested(const QString &value);
    void openRequested(const QString &address);
    /// A made password is wanted.
    /// @param owner lives as long as its field is edited
    void generatorRequested(QObject *owner, const SafeItemEditor::Place &place);

private:
    void onDestroyed();
    void clearRows();
    void makeRows(const PMListItem &item);
    FieldInput *addInput(const ItemField &field);
    void addMoreButton();
    QString moreText() const;
    void showFolded();
    void showStoredFaults();
    void onEdited(const FieldInput &input);
    void showFault(FieldInput &input);
    FieldInput *input(const char *property) const;

    InputContext m_context;
    const PMListItem *m_item = nullptr;
    ItemDraft m_draft;
    QVector<FieldInput *> m_inputs;
    QScrollArea *m_scroll;
    QWidget *m_body = nullptr;
    QVBoxLayout *m_column = nullptr;
    QPushButton *m_more = nullptr;
};
