#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class Theme;

/// Fills an empty place: a picture, what is missing, and what to do about it.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    EmptyState(const Theme &theme, QWidget *parent);

    /// @param button the words on the button; empty for none
    /// @param second those of another way
    void setContent(const QString &icon, const QString &title, const QString &advice,
                    const QString &button = {}, const QString &second = {});
    QPushButton *button() const { return m_button; }
    QPushButton *secondButton() const { return m_second; }

Q_SIGNALS:
    void pressed();
    void secondPressed();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showIcon();
    void fitIcon();

    const Theme &m_theme;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_advice;
    QPushButton *m_button;
    QPushButton *m_second;
    QString m_iconName;
};
