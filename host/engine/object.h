// Object: the counted base of everything that a handle of the API can hold; Ref: a counted pointer to one.
#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace tvxhost::engine {

/// What an object is, told without asking its class.
enum class ObjectClass : std::uint8_t
{
    node,
    attribute,
    data,
    component,
    plugin
};

/// A node, an attribute, a piece of data, a component or a plug-in. Counted by the handles that hold it, so a
/// handle never dangles; a node that was deleted lives on as an empty shell (`isAlive()` false) until the
/// last handle goes. Counting is atomic; everything else belongs to the main thread.
class Object
{
public:
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    ObjectClass objectClass() const { return m_class; }
    /// False once a node has been deleted from its scene (and not brought back by undo).
    bool isAlive() const { return m_alive; }
    /// Rises whenever some object dies or comes back: what was alive at one number is so as long as it
    /// stands.
    static std::uint64_t lifeChanges() { return s_lifeChanges; }

    void retain() const { m_count.fetch_add(1, std::memory_order_relaxed); }
    void release() const
    {
        if (m_count.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }

protected:
    explicit Object(ObjectClass objectClass) : m_class(objectClass) {}
    virtual ~Object();
    void setAlive(bool alive)
    {
        m_alive = alive;
        ++s_lifeChanges;
    }

private:
    static std::uint64_t s_lifeChanges; ///< main thread only, as lives are

    mutable std::atomic<std::uint32_t> m_count{0};
    ObjectClass m_class;
    bool m_alive = true;
};

/// A counted pointer. May be null.
template <class T>
class Ref
{
public:
    Ref() = default;
    Ref(T* object) : m_object(object) { retain(); }
    Ref(const Ref& other) : m_object(other.m_object) { retain(); }
    Ref(Ref&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class U>
    Ref(const Ref<U>& other) : m_object(other.get())
    {
        retain();
    }
    ~Ref() { release(); }
    Ref& operator=(Ref other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }
    friend bool operator==(const Ref& a, const Ref& b) { return a.m_object == b.m_object; }
    friend bool operator!=(const Ref& a, const Ref& b) { return a.m_object != b.m_object; }

private:
    void retain() const
    {
        if (m_object)
            m_object->retain();
    }
    void release() const
    {
        if (m_object)
            m_object->release();
    }

    T* m_object = nullptr;
};

} // namespace tvxhost::engine
