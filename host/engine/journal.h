// Journal: what was edited, step by step, so that it can be taken back and done again.
#pragma once

#include "object.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tvxhost::engine {

/// One change of a scene. Each direction is called only after the other; both leave the scene exactly as it
/// was then, the same objects included.
class Edit
{
public:
    virtual ~Edit() = default;
    virtual void undo() = 0;
    virtual void redo() = 0;
    /// Whether it runs code of that plug-in.
    virtual bool isOf(const std::string& /*plugin*/) const { return false; }
};

/// Edits that belong together, in the order in which they were made.
class Step
{
public:
    Step();
    ~Step() { clear(); }
    Step(Step&&) = default;
    Step& operator=(Step&& other) noexcept;

    /// As `undoInfo -undoName` gives it: the command, or the name of a chunk.
    std::string name;
    /// No two steps have the same.
    std::uint64_t id() const { return m_id; }

    bool empty() const { return m_edits.empty(); }
    bool isOf(const std::string& plugin) const;
    void add(std::unique_ptr<Edit> edit) { m_edits.push_back(std::move(edit)); }
    /// Takes over the edits of a step that came after it.
    void append(Step&& later);
    void undo();
    void redo();
    void clear();

private:
    std::uint64_t m_id;
    std::vector<std::unique_ptr<Edit>> m_edits;
};

/// The steps of one scene. Whoever changes something reports it here, in the place that changes it; whether
/// that is remembered, and by which step, is decided here. Off in batch mode unless switched on.
class Journal
{
public:
    static constexpr std::size_t kDefaultLength = 50;

    explicit Journal(bool on) : m_isOn(on) {}
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    // Reporting edits

    bool isRecording() const { return m_target != nullptr; }
    void record(std::unique_ptr<Edit> edit);
    /// An edit as two functions.
    template <class Undo, class Redo>
    void record(Undo undo, Redo redo);
    /// Remembers what a variable holds, right before it changes. `owner` is kept for as long as that is.
    template <class T>
    void keep(T& variable, Ref<Object> owner = {})
    {
        if (isRecording())
            keepFormer(variable, variable, std::move(owner));
    }
    /// The same once it has changed.
    template <class T>
    void keepFormer(T& variable, T former, Ref<Object> owner = {});
    /// The step that remembers what is edited now; 0 when none does. What was made in a step need not have
    /// its values remembered by it: the thing goes with them, and comes back with them.
    std::uint64_t currentStep() const { return m_target ? m_target->id() : 0; }

    // Steps

    /// While it lives, a command runs: what is edited is one step. Commands within belong to it.
    class Command;
    /// Whether the next command to begin would name a step.
    bool namesNext() const { return m_isOn && m_depth == m_chunks; }
    /// Makes one step of all that follow until the matching end; empty: named by the first command. They
    /// nest.
    void openChunk(const std::string& name);
    void closeChunk();
    /// Makes one step of those that end while it lives: what a script did that ran as a whole.
    class Group;

    /// Of the step of the command or chunk that is under way.
    const std::string& runningName() const { return m_step.name; }

    /// False when there is nothing to take back (to do again).
    bool undo();
    bool redo();
    /// Forgets all steps.
    void flush();
    /// Forgets all steps if one runs code of that plug-in.
    void flushCodeOf(const std::string& plugin);

    // Switches and state

    bool isOn() const { return m_isOn; }
    /// Steps that there are stay; taking them back is safe only if nothing was edited in between.
    void setOn(bool on);
    bool isInfinite = false;
    /// How many steps are kept, unless without limit.
    std::size_t length() const { return m_length; }
    void setLength(std::size_t length);
    const std::deque<Step>& undoable() const { return m_undo; }
    const std::deque<Step>& redoable() const { return m_redo; }

    /// While it lives, edits are remembered by another step, or by none.
    class Into;
    /// The step of the command that runs; null when none does, or nothing is to be remembered.
    Step* runningStep();

private:
    void beginStep();
    void endStep();
    void travel(Step& step, void (Step::*direction)());
    void finish();
    void trim();

    bool m_isOn;
    bool m_isRedirected = false;
    bool m_isTravelling = false; ///< a step is being taken back or done again
    Step* m_target = nullptr;
    Step m_step;
    std::size_t m_depth = 0;  ///< of commands and chunks
    std::size_t m_chunks = 0; ///< of chunks
    std::string m_command;    ///< the outermost that runs
    std::size_t m_length = kDefaultLength;
    std::size_t m_groups = 0;
    std::size_t m_groupStart = 0;
    std::deque<Step> m_undo; ///< the last one first to be taken back
    std::deque<Step> m_redo; ///< the last one first to be done again
};

class Journal::Command
{
public:
    Command(Journal& journal, std::string name);
    ~Command() { m_journal.endStep(); }
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

private:
    Journal& m_journal;
};

class Journal::Group
{
public:
    explicit Group(Journal& journal);
    ~Group();
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;

private:
    Journal& m_journal;
    std::size_t m_outerStart;
};

class Journal::Into
{
public:
    Into(Journal& journal, Step* step)
        : m_journal(journal), m_target(std::exchange(journal.m_target, step)),
          m_wasRedirected(std::exchange(journal.m_isRedirected, true))
    {
    }
    ~Into()
    {
        m_journal.m_target = m_target;
        m_journal.m_isRedirected = m_wasRedirected;
    }
    Into(const Into&) = delete;
    Into& operator=(const Into&) = delete;

private:
    Journal& m_journal;
    Step* m_target;
    bool m_wasRedirected;
};

template <class Undo, class Redo>
void Journal::record(Undo undo, Redo redo)
{
    class Pair final : public Edit
    {
    public:
        Pair(Undo&& back, Redo&& forth) : m_undo(std::move(back)), m_redo(std::move(forth)) {}
        void undo() override { m_undo(); }
        void redo() override { m_redo(); }

    private:
        Undo m_undo;
        Redo m_redo;
    };
    if (isRecording())
        record(std::make_unique<Pair>(std::move(undo), std::move(redo)));
}

template <class T>
void Journal::keepFormer(T& variable, T former, Ref<Object> owner)
{
    class Swap final : public Edit
    {
    public:
        Swap(T& variable, T former, Ref<Object> owner)
            : m_variable(variable), m_held(std::move(former)), m_owner(std::move(owner))
        {
        }
        void undo() override { std::swap(m_variable, m_held); }
        void redo() override { std::swap(m_variable, m_held); }

    private:
        T& m_variable;
        T m_held;
        Ref<Object> m_owner;
    };
    if (isRecording())
        record(std::make_unique<Swap>(variable, std::move(former), std::move(owner)));
}

/// The making of something, taken back by a removal that is an edit itself: what goes with the thing is found
/// out when it goes.
template <class Remove>
class Making final : public Edit
{
public:
    Making(Journal& journal, Remove remove) : m_journal(journal), m_remove(std::move(remove)) {}
    void undo() override
    {
        const Journal::Into rest(m_journal, &m_rest);
        m_remove();
    }
    void redo() override
    {
        m_rest.undo();
        m_rest.clear();
    }

private:
    Journal& m_journal;
    Remove m_remove;
    Step m_rest;
};

} // namespace tvxhost::engine
