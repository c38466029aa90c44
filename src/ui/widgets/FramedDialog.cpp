#include "FramedDialog.h"

#include "Controls.h"
#include "style/Style.h"
#include "style/Theme.h"

#include <QEvent>

FramedDialog::FramedDialog(const QString &title, const Theme &theme, QWidget *parent)
    : QDialog(parent)
    , m_title(makeLabel(title, "heading", this))
    , m_body(new QVBoxLayout)
{
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto *close =
        makeIconButton(theme.icon(QStringLiteral("x"), Palette::Muted), tr("Close"), "tool", this);
    close->setObjectName(QStringLiteral("closeButton"));
    connect(close, &QToolButton::clicked, this, &QDialog::reject);
    auto *head = new QHBoxLayout;
    head->setContentsMargins(Style::margin, Style::gap, Style::spacing, 0);
    head->addWidget(m_title, 1);
    head->addWidget(close);
    m_body->setContentsMargins(Style::margin, Style::spacing, Style::margin, Style::margin);
    m_body->setSpacing(Style::spacing);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins({});
    all->setSpacing(0);
    all->addLayout(head);
    all->addLayout(m_body, 1);
}

void FramedDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::WindowTitleChange)
        m_title->setText(windowTitle());
}
