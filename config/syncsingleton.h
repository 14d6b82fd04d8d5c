// A singleton made on first use under a lock and deleted when the process ends.
#pragma once

#include <QMutex>
#include <QMutexLocker>

#include <atomic>

/**
 * The one instance of T, asked for by any number of threads at once.
 *
 * The first instance() constructs it; at the end of the process the destroyer deletes it.
 */
template<typename T>
class SyncSingleton
{
public:
    /// Holds an object and deletes it when it goes itself.
    template<typename U>
    struct Destroyer
    {
        ~Destroyer() { delete pointer; }
        U *pointer = nullptr;
    };

    /// The instance; it belongs to the singleton. The lock is taken on first use only.
    static T *instance()
    {
        if (!instance_pointer.load(std::memory_order_acquire))
            createInstance();
        return instance_pointer.load(std::memory_order_acquire);
    }

    /// Constructs the instance unless another thread was first. When T's constructor throws,
    /// nothing is stored and the next call tries again.
    static void createInstance()
    {
        const QMutexLocker lock(&instance_mutex);
        if (instance_pointer.load(std::memory_order_relaxed))
            return;
        instance_destroyer.pointer = new T;
        instance_pointer.store(instance_destroyer.pointer, std::memory_order_release);
    }

    // The destroyer comes after the mutex, so that it goes first.
    inline static std::atomic<T *> instance_pointer = nullptr;
    inline static QMutex instance_mutex;
    inline static Destroyer<T> instance_destroyer;
};
