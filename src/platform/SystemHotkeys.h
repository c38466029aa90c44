#pragma once

#include <functional>
#include <memory>
#include <utility>

/// Key combinations that reach the program whichever window has the keyboard. Used from the GUI
/// thread alone.
class SystemHotkeys
{
public:
    enum class Result {
        Registered,
        Taken,      ///< by another program
        Unsupported ///< the system has none, or its keyboard lacks the key
    };

    enum Modifier : unsigned { Shift = 1, Control = 2, Alt = 4, Meta = 8 };

    /// Keys without a character, beyond the range of Unicode. F1 to F24 follow each other.
    enum SpecialKey : char32_t {
        F1 = 0x110000,
        F24 = F1 + 23,
        Escape,
        Tab,
        Backspace,
        Return,
        Insert,
        Delete,
        Home,
        End,
        PageUp,
        PageDown,
        Left,
        Up,
        Right,
        Down,
        Pause,
        Print,
        ScrollLock
    };

    struct Combination
    {
        unsigned modifiers = 0;
        char32_t key = 0; ///< the key's character, letters in lower case, or a SpecialKey
    };

    virtual ~SystemHotkeys() = default;

    /// The implementation for the system that this was built for.
    static std::unique_ptr<SystemHotkeys> create();

    /// Registers a combination under a number of the caller's, which has none yet.
    virtual Result add(int id, const Combination &combination) = 0;
    virtual void remove(int id) = 0;

    /// What is called with the number when its combination is pressed.
    void setHandler(std::function<void(int id)> handler) { m_handler = std::move(handler); }

    /// A file descriptor that can be read when readEvents() has something to do; -1 where presses
    /// come by themselves.
    virtual int descriptor() const { return -1; }
    virtual void readEvents() {}

protected:
    SystemHotkeys() = default;
    SystemHotkeys(const SystemHotkeys &) = delete;
    SystemHotkeys &operator=(const SystemHotkeys &) = delete;

    void tellPressed(int id) const
    {
        if (m_handler)
            m_handler(id);
    }

private:
    std::function<void(int id)> m_handler;
};
