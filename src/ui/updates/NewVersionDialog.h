#pragma once

#include "UpdateNews.h"
#include "widgets/FramedDialog.h"

/// Tells that there is a newer version, and leads to it. Nothing is fetched or installed.
class NewVersionDialog : public FramedDialog
{
    Q_OBJECT

public:
    /// @param current the version that runs
    NewVersionDialog(const UpdateNews &news, const QString &current, const Theme &theme,
                     QWidget *parent);

Q_SIGNALS:
    void pageRequested(const QUrl &page);
};
