// Journal: see journal.h.
#include "journal.h"

#include <algorithm>
#include <atomic>

namespace tvxhost::engine {

namespace {

std::atomic<std::uint64_t> g_lastId{0};

} // namespace

Step::Step() : m_id(++g_lastId) {}

Step& Step::operator=(Step&& other) noexcept
{
    clear();
    name = std::move(other.name);
    m_id = other.m_id;
    m_edits = std::move(other.m_edits);
    return *this;
}

bool Step::isOf(const std::string& plugin) const
{
    return std::any_of(m_edits.begin(), m_edits.end(),
                       [&](const std::unique_ptr<Edit>& edit) { return edit->isOf(plugin); });
}

void Step::append(Step&& later)
{
    if (name.empty())
        name = std::move(later.name);
    m_edits.insert(m_edits.end(), std::make_move_iterator(later.m_edits.begin()),
                   std::make_move_iterator(later.m_edits.end()));
    later.m_edits.clear();
}

void Step::undo()
{
    for (auto edit = m_edits.rbegin(); edit != m_edits.rend(); ++edit)
        (*edit)->undo();
}

void Step::redo()
{
    for (const std::unique_ptr<Edit>& edit : m_edits)
        edit->redo();
}

void Step::clear()
{
    while (!m_edits.empty())
        m_edits.pop_back();
}

void Journal::record(std::unique_ptr<Edit> edit)
{
    if (!m_target)
        return;
    if (m_target->name.empty())
        m_target->name = m_command;
    m_target->add(std::move(edit));
}

// Steps

Journal::Command::Command(Journal& journal, std::string name) : m_journal(journal)
{
    if (journal.namesNext())
        journal.m_command = std::move(name);
    journal.beginStep();
}

void Journal::openChunk(const std::string& name)
{
    ++m_chunks;
    beginStep();
    if (m_step.empty() && m_step.name.empty())
        m_step.name = name;
}

void Journal::closeChunk()
{
    if (m_chunks == 0)
        return;
    --m_chunks;
    endStep();
}

void Journal::beginStep()
{
    if (m_depth++ == 0 && !m_isRedirected)
        m_target = runningStep();
}

void Journal::endStep()
{
    if (--m_depth > 0)
        return;
    finish();
    if (!m_isRedirected)
        m_target = nullptr;
}

void Journal::finish()
{
    Step done = std::exchange(m_step, Step());
    if (done.empty())
        return;
    m_redo.clear();
    m_undo.push_back(std::move(done));
    trim();
}

void Journal::trim()
{
    if (m_groups > 0 || isInfinite)
        return;
    while (m_undo.size() > m_length)
        m_undo.pop_front();
}

Step* Journal::runningStep()
{
    return m_isOn && !m_isTravelling && m_depth > 0 ? &m_step : nullptr;
}

bool Journal::undo()
{
    // What the running command did so far, and all chunks, end here.
    m_depth -= std::exchange(m_chunks, 0);
    finish();
    if (m_undo.empty())
        return false;
    Step step = std::move(m_undo.back());
    m_undo.pop_back();
    m_groupStart = std::min(m_groupStart, m_undo.size());
    travel(step, &Step::undo);
    m_redo.push_back(std::move(step));
    return true;
}

bool Journal::redo()
{
    m_depth -= std::exchange(m_chunks, 0);
    finish();
    if (m_redo.empty())
        return false;
    Step step = std::move(m_redo.back());
    m_redo.pop_back();
    travel(step, &Step::redo);
    m_undo.push_back(std::move(step));
    return true;
}

void Journal::travel(Step& step, void (Step::*direction)())
{
    const Into nothing(*this, nullptr);
    const bool wasTravelling = std::exchange(m_isTravelling, true);
    (step.*direction)();
    m_isTravelling = wasTravelling;
}

void Journal::flush()
{
    m_step.clear();
    m_step.name.clear();
    m_redo.clear();
    // The newest first: what it removed may be what an older one made.
    while (!m_undo.empty())
        m_undo.pop_back();
    m_groupStart = 0;
}

void Journal::flushCodeOf(const std::string& plugin)
{
    const auto isOf = [&](const Step& step) { return step.isOf(plugin); };
    if (isOf(m_step) || std::any_of(m_undo.begin(), m_undo.end(), isOf) ||
        std::any_of(m_redo.begin(), m_redo.end(), isOf))
        flush();
}

void Journal::setOn(bool on)
{
    m_isOn = on;
    if (!m_isRedirected || m_target == &m_step)
        m_target = runningStep();
}

void Journal::setLength(std::size_t length)
{
    m_length = length;
    trim();
}

Journal::Group::Group(Journal& journal)
    : m_journal(journal), m_outerStart(std::exchange(journal.m_groupStart, journal.m_undo.size()))
{
    ++m_journal.m_groups;
}

Journal::Group::~Group()
{
    --m_journal.m_groups;
    std::deque<Step>& steps = m_journal.m_undo;
    const std::size_t first = m_journal.m_groupStart;
    for (std::size_t i = first + 1; i < steps.size(); ++i)
        steps[first].append(std::move(steps[i]));
    while (steps.size() > first + 1)
        steps.pop_back();
    m_journal.m_groupStart = std::min(m_outerStart, steps.size());
    m_journal.trim();
}

} // namespace tvxhost::engine
