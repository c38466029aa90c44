#pragma once

#include <QAbstractButton>

class QHBoxLayout;
class Theme;

/// One attachment: its name and size, which are a button, with further buttons behind them.
class AttachmentRow : public QWidget
{
    Q_OBJECT

public:
    AttachmentRow(const QString &name, const QString &detail, const Theme &theme, QWidget *parent);

    /// What an attachment of the safe offers, beside its preview.
    void addActions(const Theme &theme, bool removable);

    /// The parts that take the keyboard, in order.
    QVector<QWidget *> focusParts() const { return m_parts; }

Q_SIGNALS:
    void previewRequested();
    void saveRequested();
    void removeRequested();
    void renameRequested();
    void openRequested();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    QString m_name;
    QHBoxLayout *m_layout;
    QAbstractButton *m_front;
    QVector<QWidget *> m_parts;
    bool m_hasActions = false;
    bool m_removable = false;
};
