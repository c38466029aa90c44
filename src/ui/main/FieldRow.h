#pragma once

#include "ItemFields.h"
#include "style/Palette.h"

#include <QFrame>

class QHBoxLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;
class Theme;

/// One field of an item on its page: label and value, with the buttons that belong to it. A secret
/// is shown as dots until it is revealed. A click on the row copies the value.
class FieldRow : public QFrame
{
    Q_OBJECT

public:
    /// @param value what is shown
    /// @param copied what is copied
    FieldRow(const ItemField &field, const QString &value, const QString &copied,
             const Theme &theme, QWidget *parent);

    /// Shows the strength of a password below its dots.
    void setStrength(int level);
    /// Shows a word beside the value.
    void setBadge(const QString &text, Palette::Role role);
    /// Adds the button that asks for a made password.
    void addGenerator();
    /// Adds the button that offers other values; a click on the row opens it, too.
    void addChoices(const QStringList &texts);

Q_SIGNALS:
    void copyRequested(const QString &value);
    void openRequested(const QString &value);
    void generatorRequested();
    void chosen(int index);

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *makeValue();
    void addButtons();
    QToolButton *addButton(const QString &icon, const QString &name, const char *suffix);
    void setRevealed(bool revealed);

    ItemField m_field;
    QString m_value;
    QString m_copied;
    const Theme &m_theme;
    QLabel *m_text;
    QToolButton *m_reveal = nullptr;
    QToolButton *m_choose = nullptr;
    QVBoxLayout *m_texts;
    QHBoxLayout *m_line;
    QHBoxLayout *m_row;
};
