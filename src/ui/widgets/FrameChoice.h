#pragma once

class QString;

/// Which frame windows get.
struct FrameChoice
{
    enum Frame {
        System,  ///< the system draws it, and our title bar is not shown
        Adopted, ///< ours, to which the system adds its shadow, its edges and snapping
        Shadow,  ///< ours, with round corners, in a shadow that we draw
        Line     ///< ours, in a line: nothing blends windows here
    };

    /// @param platform the name of Qt's platform plug-in
    /// @param compositor whether windows are blended; asked of X11 alone
    static Frame choose(const QString &platform, bool compositor);

    /// The frame that fits now.
    static Frame current();
};
