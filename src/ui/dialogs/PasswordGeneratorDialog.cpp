#include "PasswordGeneratorDialog.h"

#include "style/Style.h"

#include <QDebug>
#include <QEvent>
#include <QVBoxLayout>

namespace {

const int usualWidth = 376;

} // namespace

PasswordGeneratorDialog::PasswordGeneratorDialog(const Parts &parts, const Theme &theme,
                                                 QWidget *parent)
    : FramedDialog(tr("Password Generator"), theme, parent)
    , m_panel(new GeneratorPanel(parts, GeneratorPanel::Whole, theme, this))
{
    setObjectName(QStringLiteral("PasswordGenerator"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(Style::scaled(usualWidth));
    body().addWidget(m_panel);
    connect(m_panel, &GeneratorPanel::placed, this, &QDialog::accept);
    connect(m_panel, &GeneratorPanel::cancelled, this, &QDialog::reject);
    connect(m_panel, &GeneratorPanel::grown, this, &QWidget::adjustSize);
    m_panel->start();
    m_panel->takeFocus();
    qDebug().noquote() << "UI: PasswordGenerator: instance created";
}

PasswordGeneratorDialog::~PasswordGeneratorDialog()
{
    qDebug().noquote() << "UI: PasswordGenerator: instance destroyed";
}

bool PasswordGeneratorDialog::event(QEvent *event)
{
    // A browser may have come or gone meanwhile.
    if (event->type() == QEvent::WindowActivate)
        updatePlace();
    return FramedDialog::event(event);
}
