#pragma once

#include <QObject>

class GPMAppCore;
class QWidget;
class Theme;

/// Opens the windows that bring items into the open safe and out of it.
class MoveDesk : public QObject
{
    Q_OBJECT

public:
    /// @param place the windows open above its window
    MoveDesk(GPMAppCore &core, const Theme &theme, QWidget *place);

    void bringOver();
    void exportAll();
    void exportItems(const QStringList &ids);

private:
    GPMAppCore &m_core;
    const Theme &m_theme;
    QWidget *m_place;
};
