#pragma once

#include <QObject>

/// One stored item field: the property, its getter and setter, and its change signal. A setter that
/// receives the value already there does nothing, so that an item counts as changed only when it
/// is.
#define PM_PROPERTY(Type, name, Setter)                                                            \
public:                                                                                            \
    Q_PROPERTY(Type name READ name WRITE Setter NOTIFY name##Changed)                              \
    Type name() const                                                                              \
    {                                                                                              \
        return m_##name;                                                                           \
    }                                                                                              \
    void Setter(const Type &value)                                                                 \
    {                                                                                              \
        if (m_##name == value)                                                                     \
            return;                                                                                \
        m_##name = value;                                                                          \
        countChange();                                                                             \
        Q_EMIT name##Changed();                                                                    \
    }                                                                                              \
    Q_SIGNAL void name##Changed();                                                                 \
                                                                                                   \
private:                                                                                           \
    Type m_##name{};
