#include "Banner.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QBoxLayout>
#include <QDir>
#include <QLabel>
#include <QToolButton>

namespace {

const int shownFiles = 4;

} // namespace

Banner::Banner(const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_text(makeLabel({}, "heading", this))
    , m_files(makeLabel({}, "muted", this))
{
    setObjectName(QStringLiteral("banner"));
    auto *icon = new QLabel(this);
    const auto showIcon = [icon, &theme] {
        icon->setPixmap(theme.icon(QStringLiteral("alert-triangle"), Palette::Weak)
                            .pixmap(icon->window()->windowHandle(), QSize(20, 20)));
    };
    showIcon();
    connect(&theme, &Theme::changed, this, showIcon);
    m_text->setObjectName(QStringLiteral("bannerText"));
    m_files->setObjectName(QStringLiteral("bannerFiles"));
    m_files->setWordWrap(true);
    m_files->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto *close = makeIconButton(theme.icon(QStringLiteral("x"), Palette::Text), tr("Dismiss"),
                                 "plain", this);
    close->setObjectName(QStringLiteral("bannerCloseButton"));
    connect(close, &QToolButton::clicked, this, &QWidget::hide);

    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_text);
    texts->addWidget(m_files);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Style::margin, 10, Style::gap, 10);
    row->setSpacing(Style::gap);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(close, 0, Qt::AlignTop);
    hide();
}

void Banner::setUnreadableFiles(const QStringList &paths)
{
    setVisible(!paths.isEmpty());
    m_text->setText(paths.size() == 1 ? tr("1 item could not be read")
                                      : tr("%n items could not be read", nullptr, paths.size()));
    QStringList lines;
    for (const QString &path : paths.mid(0, shownFiles))
        lines.append(QDir::toNativeSeparators(path));
    if (paths.size() > shownFiles)
        lines.append(tr("and %n more in the same folder", nullptr, paths.size() - shownFiles));
    m_files->setText(tr("Their files were left as they are. A backup may hold them undamaged:\n%1")
                         .arg(lines.join(QLatin1Char('\n'))));
}
