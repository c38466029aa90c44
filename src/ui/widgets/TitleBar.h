#pragma once

#include <QWidget>

#include <functional>

class QIcon;
class QLabel;
class QToolButton;
class Theme;

/// The buttons at the top right of a window with a frame of our own, with its title before them in
/// small windows.
class TitleBar : public QWidget
{
    Q_OBJECT

public:
    enum Buttons { CloseOnly, All };

    TitleBar(const Theme &theme, Buttons buttons, QWidget *window);

    /// Shows the window's title before the buttons.
    void showTitle();

    /// Shows a widget in place of the title; the bar grows with it.
    void setHeader(QWidget *header);

    /// Whether it lies on the dark ground of the lock pages.
    void setOnDark(bool onDark);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QToolButton *addButton(const char *objectName, const QString &name,
                           const std::function<void()> &action);
    QIcon icon(const char *name) const;
    void showIcons();

    const Theme &m_theme;
    QWidget *m_window;
    QLabel *m_title = nullptr;
    QToolButton *m_minimise = nullptr;
    QToolButton *m_maximise = nullptr;
    QToolButton *m_close = nullptr;
    bool m_onDark = false;
};
