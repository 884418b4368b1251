// One instance of a class per library, made on first use and destroyed when the library is unloaded.
#pragma once

#include <tvxCore/AtUnload.h>

#include <tbb/spin_mutex.h>

#include <atomic>
#include <new>

namespace tarvox::core {

/// Base of a class T of which there is one instance: `class T : public Singleton<T>`, with a private default
/// constructor and destructor and `friend class Singleton<T>`.
///
/// The instance lives in static storage of the library or program that instantiates the template, and is
/// destroyed when that one is unloaded or ends: after the statics that were complete later than it, before
/// those that were complete earlier. What T needs until its end must therefore exist before its constructor
/// returns.
template <class T>
class Singleton
{
public:
    Singleton(const Singleton&) = delete;
    Singleton& operator=(const Singleton&) = delete;

    /// The instance, made by the first call; safe from any thread. Asked for again after its destruction, it
    /// is made anew in the same storage, to be destroyed again. T's constructor and destructor must not call
    /// this. Throws what T's constructor throws; the next call then tries again.
    static T& getInstance()
    {
        T* instance = s_instance.load(std::memory_order_acquire);
        return instance ? *instance : makeInstance();
    }

protected:
    Singleton() = default;
    virtual ~Singleton() = default;

private:
    static T& makeInstance()
    {
        const tbb::spin_mutex::scoped_lock lock(s_lock);
        if (T* made = s_instance.load(std::memory_order_relaxed))
            return *made;
        T* instance = new (storage()) T;
        // Runs when the library that holds this code is unloaded. Should there be no room for one more
        // handler, the instance is simply never destroyed.
        static_cast<void>(callAtUnload(&Singleton::destroyInstance));
        s_instance.exchange(instance);
        return *instance;
    }

    static void destroyInstance()
    {
        s_instance.load()->~T();
        s_instance.exchange(nullptr);
    }

    // In a function, which is compiled where T is complete: T derives from this class.
    static void* storage()
    {
        alignas(T) static unsigned char bytes[sizeof(T)];
        return bytes;
    }

    static std::atomic<T*> s_instance;
    static tbb::spin_mutex s_lock;
};

template <class T>
std::atomic<T*> Singleton<T>::s_instance{nullptr};

template <class T>
tbb::spin_mutex Singleton<T>::s_lock;

} // namespace tarvox::core
