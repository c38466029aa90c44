#pragma once

#include <QWidget>

class CloudFolders;
class QLabel;
class QPushButton;
class Theme;

/// Offers a safe of the cloud folder to who is about to make one; takes no room while there is
/// none.
class CloudOffer : public QWidget
{
    Q_OBJECT

public:
    enum Ground { Plain, Dark };

    CloudOffer(CloudFolders &folders, const Theme &theme, Ground ground, QWidget *parent);

    /// Looks whether there is one.
    void look();

Q_SIGNALS:
    void importRequested();

protected:
    bool event(QEvent *event) override;

private:
    void showState();

    CloudFolders &m_folders;
    QLabel *m_text;
    QPushButton *m_button;
};
