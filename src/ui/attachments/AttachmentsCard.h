#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class AttachmentActions;
class AttachmentRow;
class GPMAppCore;
class MessageLabel;
class PMListItem;
class QMimeData;
class QPushButton;
class QVBoxLayout;
class Theme;

/// The attachments of the item that is shown, or the attachment itself when that is what the item
/// is, and the ways to add some: by a button, by dropping and by pasting.
class AttachmentsCard : public QWidget
{
    Q_OBJECT

public:
    AttachmentsCard(GPMAppCore &core, AttachmentActions &actions, const Theme &theme,
                    QWidget *parent);

    /// Follows the item and its attachments until it goes; null shows nothing.
    void setItem(const PMListItem *item);

    /// Makes a widget take what is dropped on it.
    void acceptDropsOn(QWidget *widget);
    /// Attaches what the clipboard holds. False when that is nothing to attach.
    bool paste();

    /// The parts that take the keyboard, in order.
    QVector<QWidget *> focusParts() const;

Q_SIGNALS:
    /// Other parts take the keyboard now.
    void focusPartsChanged();
    void removeRequested(const QString &id);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();
    void followSafe();
    void refresh();
    void clearRows();
    void addRows();
    void addRow(const PMListItem &attachment);
    void addToCard(AttachmentRow *row);
    void watch(const PMListItem &item);
    bool isEditable() const;
    QString parentId() const;
    void choose();
    bool attach(const QMimeData *given);
    void showDropMark(bool shown);

    GPMAppCore &m_core;
    AttachmentActions &m_actions;
    const Theme &m_theme;
    QPointer<const PMListItem> m_item;
    QTimer m_refresh;
    QVBoxLayout *m_column;
    QWidget *m_card = nullptr;
    QPushButton *m_attach;
    MessageLabel *m_message;
    QVector<AttachmentRow *> m_rows;
    QWidget *m_dropMark = nullptr;
    QVector<QMetaObject::Connection> m_watched;
    QVector<QMetaObject::Connection> m_safeConnections;
};
