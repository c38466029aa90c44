#pragma once

#include <QFrame>

class QLabel;
class Theme;

/// Tells above the main view that items could not be read, until it is dismissed.
class Banner : public QFrame
{
    Q_OBJECT

public:
    Banner(const Theme &theme, QWidget *parent);

    /// Names the files; none hides the banner.
    void setUnreadableFiles(const QStringList &paths);

private:
    QLabel *m_text;
    QLabel *m_files;
};
