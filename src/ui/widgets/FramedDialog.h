#pragma once

#include <QDialog>

class QLabel;
class QVBoxLayout;
class Theme;

/// A window beside the main one: its title and a button that closes it above its content.
class FramedDialog : public QDialog
{
    Q_OBJECT

public:
    FramedDialog(const QString &title, const Theme &theme, QWidget *parent);

    /// Where the content goes, below the title, within the usual margins.
    QVBoxLayout &body() { return *m_body; }

protected:
    void changeEvent(QEvent *event) override;

private:
    QLabel *m_title;
    QVBoxLayout *m_body;
};
