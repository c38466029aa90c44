#pragma once

#include <QColor>

#include <array>

/// The colours of the windows by their role, in a light and a dark set.
class Palette
{
public:
    enum Role {
        Window,
        List,
        Field,
        Sidebar,
        SidebarSelection,
        SidebarText,
        SidebarMuted,
        Text,
        Muted,
        Line,
        Accent,
        AccentHover,
        OnAccent,
        Soft,
        Strong,
        Good,
        Weak,
        Terrible,
        Star,
        White,
        CardStart,
        CardEnd,
        RoleCount
    };

    static const Palette &light();
    static const Palette &dark();

    const QColor &color(Role role) const { return m_colors[role]; }
    bool isDark() const { return m_dark; }

    /// The colour of a strength level, 1 to 4.
    const QColor &strength(int level) const;

    /// The ground of a badge whose text has the colour.
    QColor tint(const QColor &color) const;

    /// The name under which the style sheet refers to a role.
    static const char *roleName(Role role);

private:
    struct Row
    {
        Role role;
        const char *name;
        const char *light;
        const char *dark;
    };
    static const std::array<Row, RoleCount> rows;

    explicit Palette(bool dark);

    std::array<QColor, RoleCount> m_colors;
    bool m_dark;
};
