#include "QuickLockPage.h"

#include "lock/Crystal.h"
#include "lock/MasterPasswordPage.h"
#include "lock/Shutters.h"
#include "style/Style.h"

#include <QPainter>
#include <QVBoxLayout>

namespace {

const int crystalFrom = 410; ///< the height that has room for it

} // namespace

QuickLockPage::QuickLockPage(UnlockLogic &logic, Platform &platform, const Theme &theme,
                             QWidget *parent)
    : QWidget(parent)
{
    // The look of the lock pages; named before their parts look it up.
    setObjectName(QStringLiteral("lockPages"));
    m_page = new MasterPasswordPage(logic, platform, theme, this, MasterPasswordPage::Small);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->addWidget(m_page);
    connect(m_page, &MasterPasswordPage::createRequested, this,
            &QuickLockPage::mainWindowRequested);
}

void QuickLockPage::takeFocus()
{
    m_page->takeFocus();
}

void QuickLockPage::clearSecrets()
{
    m_page->clearSecrets();
}

void QuickLockPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    Shutters::paintGround(painter, rect());
}

void QuickLockPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_page->crystal().setVisible(height() >= Style::scaled(crystalFrom));
}
