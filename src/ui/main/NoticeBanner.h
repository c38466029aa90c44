#pragma once

#include <QFrame>

class QBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;
class Theme;

/// Tells above the main view what the user should know, with buttons to act on it.
class NoticeBanner : public QFrame
{
    Q_OBJECT

public:
    /// @param icon name of the icon in front
    NoticeBanner(const QString &icon, const Theme &theme, QWidget *parent);

    QPushButton *addButton(const QString &text, const char *look, const char *name);

    /// Shows itself; assistive tools are told.
    void tell(const QString &heading, const QString &text);
    /// Forgets the texts too.
    void dismiss();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QLabel *m_heading;
    QLabel *m_text;
    QBoxLayout *m_middle; ///< texts and buttons
    QBoxLayout *m_buttons;
    QToolButton *m_close;
};
