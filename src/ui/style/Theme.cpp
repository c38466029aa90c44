#include "Theme.h"

#include "Style.h"
#include "SvgIcon.h"
#include "SystemLook.h"
#include "widgets/PopUpEase.h"

#include <QApplication>
#include <QEvent>
#include <QStyleFactory>

Theme::Theme(QObject *parent)
    : QObject(parent)
    , m_palette(&Palette::light())
    , m_reducedMotion(SystemLook::wantsReducedMotion())
{
}

void Theme::apply()
{
    if (m_applied)
        return;
    Style::registerFonts();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    m_applied = true;
    followMode();
    qApp->setStyleSheet(Style::styleSheet(*m_palette));
    qApp->installEventFilter(this);
    new PopUpEase(*this, this);
    auto *motion = new MotionWatch(this);
    connect(motion, &MotionWatch::told, this, &Theme::setReducedMotion);
    motion->start();
}

void Theme::setMode(Mode mode)
{
    m_mode = mode;
    followMode();
}

void Theme::followMode()
{
    setDark(m_mode == Mode::Dark || (m_mode == Mode::System && SystemLook::isDark()));
}

void Theme::setTextPercent(int percent)
{
    if (percent == Style::textPercent())
        return;
    Style::setTextPercent(percent);
    if (!m_applied)
        return;
    QFont font = QApplication::font();
    font.setPointSize(Style::basePointSize());
    QApplication::setFont(font);
    qApp->setStyleSheet(Style::styleSheet(*m_palette));
}

QIcon Theme::icon(const QString &name, Palette::Role role) const
{
    return svgIcon(name, [this, role] { return m_palette->color(role); });
}

QIcon Theme::lockIcon(const QString &name, Palette::Role role) const
{
    return svgIcon(name, [role] { return Palette::dark().color(role); });
}

void Theme::setDark(bool dark)
{
    const Palette &palette = dark ? Palette::dark() : Palette::light();
    if (m_palette == &palette)
        return;
    m_palette = &palette;
    if (m_applied)
        qApp->setStyleSheet(Style::styleSheet(palette));
    Q_EMIT changed();
}

bool Theme::eventFilter(QObject *watched, QEvent *event)
{
    // Not every system tells of a change of its colours; the return to the program is the moment
    // to look.
    if (watched == qApp && (event->type() == QEvent::ApplicationPaletteChange ||
                            event->type() == QEvent::ApplicationStateChange))
        followMode();
    return QObject::eventFilter(watched, event);
}
