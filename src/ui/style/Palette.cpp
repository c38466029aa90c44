#include "Palette.h"

#include <QtGlobal>

const std::array<Palette::Row, Palette::RoleCount> Palette::rows = {{
    {Window, "window", "#ffffff", "#12232e"},
    {List, "list", "#f5f9fb", "#0f1e28"},
    {Field, "field", "#f5f9fb", "#0f1e28"},
    {Sidebar, "sidebar", "#0f2f42", "#0b1a24"},
    {SidebarSelection, "sidebarSelection", "#1c4a63", "#163a4d"},
    {SidebarText, "sidebarText", "#d8e8f0", "#cfe2ec"},
    {SidebarMuted, "sidebarMuted", "#9dbccb", "#8fb0bf"},
    {Text, "text", "#16303f", "#dcebf2"},
    {Muted, "muted", "#526e7c", "#86a3b1"},
    {Line, "line", "#e1eaef", "#1d3442"},
    {Accent, "accent", "#087490", "#2bb3d3"},
    {AccentHover, "accentHover", "#06637b", "#4cc3df"},
    {OnAccent, "onAccent", "#ffffff", "#04202b"},
    {Soft, "soft", "#e2f3f8", "#12394a"},
    {Strong, "strong", "#0c7a58", "#3cc79a"},
    {Good, "good", "#087490", "#2bb3d3"},
    {Weak, "weak", "#9a5b00", "#e7a23c"},
    {Terrible, "terrible", "#c8374a", "#f0697a"},
    {Star, "star", "#d48a00", "#e7a23c"},
    {White, "white", "#ffffff", "#ffffff"},
    {CardStart, "cardStart", "#17405a", "#17405a"},
    {CardEnd, "cardEnd", "#0b7c9c", "#0b7c9c"},
}};

Palette::Palette(bool dark)
    : m_dark(dark)
{
    for (const Row &row : rows)
        m_colors[row.role] = QColor(QLatin1String(dark ? row.dark : row.light));
}

const Palette &Palette::light()
{
    static const Palette palette(false);
    return palette;
}

const Palette &Palette::dark()
{
    static const Palette palette(true);
    return palette;
}

const QColor &Palette::strength(int level) const
{
    static const std::array<Role, 4> roles = {Terrible, Weak, Good, Strong};
    return color(roles[static_cast<std::size_t>(qBound(1, level, 4) - 1)]);
}

QColor Palette::tint(const QColor &color) const
{
    const qreal share = m_dark ? 0.13 : 0.08;
    const QColor &ground = m_colors[Window];
    const auto mix = [share](qreal a, qreal b) { return a * share + b * (1 - share); };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

const char *Palette::roleName(Role role)
{
    return rows[role].name;
}
