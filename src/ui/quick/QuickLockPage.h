#pragma once

#include <QWidget>

class MasterPasswordPage;
class Platform;
class Theme;
class UnlockLogic;

/// Unlocks a safe within quick access.
class QuickLockPage : public QWidget
{
    Q_OBJECT

public:
    QuickLockPage(UnlockLogic &logic, Platform &platform, const Theme &theme, QWidget *parent);

    void takeFocus();
    void clearSecrets();

Q_SIGNALS:
    /// What is wanted takes the main window.
    void mainWindowRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    MasterPasswordPage *m_page;
};
