#pragma once

#include "UserActivity.h"

/// What a user does who sits in a test. The test keeps and changes the state.
class FakeActivity : public UserActivity
{
public:
    struct State
    {
        std::uint32_t tick = 5000000;
        std::uint32_t idleMs = 0;
        bool tells = true; ///< whether queries succeed
        bool screenSaver = false;
    };

    explicit FakeActivity(const std::shared_ptr<const State> &state)
        : m_state(state)
    {
    }

    std::uint32_t tickCount() override { return m_state->tick; }
    std::optional<std::uint32_t> lastInputTick() override
    {
        if (!m_state->tells)
            return {};
        return m_state->tick - m_state->idleMs;
    }
    std::optional<bool> screenSaverRunning() override
    {
        if (!m_state->tells)
            return {};
        return m_state->screenSaver;
    }

private:
    std::shared_ptr<const State> m_state;
};
