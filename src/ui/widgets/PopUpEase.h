#pragma once

#include <QObject>

class Theme;

/// Lets menus and lists of completers and selectors fade in.
class PopUpEase : public QObject
{
    Q_OBJECT

public:
    /// Watches all windows of the application.
    explicit PopUpEase(const Theme &theme, QObject *parent = nullptr);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Theme &m_theme;
};
