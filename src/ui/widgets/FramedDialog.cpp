#include "FramedDialog.h"

#include "TitleBar.h"
#include "WindowFrame.h"
#include "style/Style.h"

#include <QBoxLayout>

FramedDialog::FramedDialog(const QString &title, const Theme &theme, QWidget *parent)
    : QDialog(parent)
    , m_frame(new WindowFrame(*this, WindowFrame::Resizable))
    , m_bar(new TitleBar(theme, TitleBar::CloseOnly, this))
    , m_body(new QVBoxLayout)
{
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_bar->showTitle();
    m_bar->setVisible(m_frame->isOurs());
    m_body->setContentsMargins(Style::margin, Style::spacing, Style::margin, Style::margin);
    m_body->setSpacing(Style::spacing);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addWidget(m_bar);
    all->addLayout(m_body, 1);
}

void FramedDialog::setHeader(QWidget *header)
{
    if (m_frame->isOurs())
        m_bar->setHeader(header);
    else
        m_body->insertWidget(0, header);
}

void FramedDialog::resize(const QSize &size)
{
    QDialog::resize(size + m_frame->addition());
}

void FramedDialog::setMinimumSize(const QSize &size)
{
    QDialog::setMinimumSize(size + m_frame->addition());
}

void FramedDialog::setMinimumWidth(int width)
{
    QDialog::setMinimumWidth(width + m_frame->addition().width());
}

void FramedDialog::setFixedSize(const QSize &size)
{
    QDialog::setFixedSize(size + m_frame->addition());
}

void FramedDialog::setFixedWidth(int width)
{
    QDialog::setFixedWidth(width + m_frame->addition().width());
}
