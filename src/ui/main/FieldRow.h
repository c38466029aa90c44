#pragma once

#include "ItemFields.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;
class Theme;

/// One field of an item on its page: label and value, with the buttons that belong to it. A secret
/// is shown as dots until it is revealed.
class FieldRow : public QWidget
{
    Q_OBJECT

public:
    FieldRow(const ItemField &field, const QString &value, const Theme &theme, QWidget *parent);

    /// Shows the strength of a password below its dots.
    void setStrength(int level);

Q_SIGNALS:
    void copyRequested(const QString &value);
    void openRequested(const QString &value);

private:
    QWidget *makeValue();
    void addButtons(QHBoxLayout &row);
    void setRevealed(bool revealed);

    ItemField m_field;
    QString m_value;
    const Theme &m_theme;
    QLabel *m_secret = nullptr;
    QToolButton *m_reveal = nullptr;
    QVBoxLayout *m_texts;
};
