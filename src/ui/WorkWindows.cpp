#include "WorkWindows.h"

#include "dialogs/ProgressDialog.h"
#include "movein/MoveInDialog.h"

namespace {

/// To change the parent of a window hides it and may put it elsewhere.
void setOwner(QDialog &dialog, QWidget *owner)
{
    const QRect place = dialog.geometry();
    dialog.setParent(owner, dialog.windowFlags());
    dialog.setGeometry(place);
}

} // namespace

WorkWindows::WorkWindows(const QWidget &former)
{
    const auto running = former.findChildren<ProgressDialog *>();
    for (ProgressDialog *dialog : running)
        m_taken.append({dialog, dialog->isVisible()});
    const auto movingIn = former.findChildren<MoveInDialog *>();
    for (MoveInDialog *dialog : movingIn) {
        if (dialog->holdsWork())
            m_taken.append({dialog, dialog->isVisible()});
    }
    for (const Taken &taken : qAsConst(m_taken))
        setOwner(*taken.dialog, nullptr);
}

void WorkWindows::moveTo(QWidget &window)
{
    for (const Taken &taken : qAsConst(m_taken)) {
        if (!taken.dialog)
            continue;
        setOwner(*taken.dialog, &window);
        if (taken.wasVisible)
            taken.dialog->show();
    }
}
