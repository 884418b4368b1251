// Playback: the ranges of time that the user sees and plays.
#pragma once

#include <algorithm>

namespace tvxhost::engine {

/// Times are seconds. The played range lies within that of the animation.
class Playback
{
public:
    /// Values are those of the API's enumerations.
    enum class Mode
    {
        once,
        loop,
        oscillate
    };
    enum class Views
    {
        all,
        active
    };

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    double animationStart() const { return m_start; }
    double animationEnd() const { return m_end; }

    // A new end moves the others that it would pass.
    void setMinimum(double time)
    {
        m_minimum = time;
        m_maximum = std::max(m_maximum, time);
        widen();
    }
    void setMaximum(double time)
    {
        m_maximum = time;
        m_minimum = std::min(m_minimum, time);
        widen();
    }
    void setAnimationStart(double time)
    {
        m_start = time;
        m_minimum = std::max(m_minimum, time);
        m_maximum = std::max(m_maximum, time);
        m_end = std::max(m_end, m_maximum);
    }
    void setAnimationEnd(double time)
    {
        m_end = time;
        m_maximum = std::min(m_maximum, time);
        m_minimum = std::min(m_minimum, time);
        m_start = std::min(m_start, m_minimum);
    }

    double by = 1.0;    ///< frames from one that is shown to the next
    double speed = 0.0; ///< 1 is real time, 0 shows every frame
    Mode mode = Mode::loop;
    Views views = Views::active;

private:
    void widen()
    {
        m_start = std::min(m_start, m_minimum);
        m_end = std::max(m_end, m_maximum);
    }

    // Frames 1 to 24 of an animation of 48 frames of film.
    double m_minimum = 1.0 / 24.0;
    double m_maximum = 1.0;
    double m_start = 1.0 / 24.0;
    double m_end = 2.0;
};

} // namespace tvxhost::engine
