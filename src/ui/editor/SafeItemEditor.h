#pragma once

#include "ItemDraft.h"

#include <QWidget>

#include <functional>

class GPMAppSettings;
struct KeptDraft;
class QLabel;
class QScrollArea;
class QVBoxLayout;
class StrengthMeter;
class Theme;

/// Edits the fields of one item. The values stay in its draft until someone writes them.
class SafeItemEditor : public QWidget
{
    Q_OBJECT

public:
    SafeItemEditor(const GPMAppSettings &settings, const Theme &theme, QWidget *parent);

    /// Whether items of a kind can be edited.
    static bool canEdit(PMListItem::Type type);

    /// Shows an item's fields; it is only watched, not changed. The empty item is null.
    /// @param kept what an earlier edit had made of it; null for none
    void setItem(const PMListItem *item, bool isNew, const KeptDraft *kept = nullptr);
    const ItemDraft &draft() const { return m_draft; }
    bool isModified() const { return m_draft.isModified(); }

    /// Puts the keyboard into the title.
    void takeFocus();
    /// Says below each row what is wrong with it, and puts the keyboard into the first such row.
    void showFaults();

Q_SIGNALS:
    void modifiedChanged();
    /// The item was destroyed while its fields were edited.
    void itemGone();

private:
    struct Row
    {
        ItemField field;
        QWidget *input = nullptr;
        QLabel *message = nullptr;
    };

    void onDestroyed();
    void clearRows();
    void addRow(const ItemField &field);
    QWidget *makeInput(const ItemField &field);
    QWidget *makeLine(const ItemField &field);
    QWidget *makeSecret(const ItemField &field);
    QWidget *makeFillType(const ItemField &field);
    QWidget *makeMultiline(const ItemField &field);
    void onEdited(const ItemField &field, const QVariant &value);
    void showFault(const Row &row);

    const GPMAppSettings &m_settings;
    const Theme &m_theme;
    const PMListItem *m_item = nullptr;
    ItemDraft m_draft;
    QVector<Row> m_rows;
    QScrollArea *m_scroll;
    QWidget *m_body = nullptr;
    QVBoxLayout *m_column = nullptr;
};
