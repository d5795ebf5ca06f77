#include "standin/display/workers.h"

#include <algorithm>

namespace standin {

Workers::~Workers() {
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isEnding = true;
        tasks.clear();
    }
    arrived.notify_all();
    for (std::thread& thread : threads)
        thread.join();
}

int Workers::count() {
    static const int threads = std::max(2, static_cast<int>(std::thread::hardware_concurrency()));
    return threads;
}

void Workers::start(std::function<void()> task) {
    {
        const std::lock_guard<std::mutex> lock(mutex);
        tasks.push_back(std::move(task));
    }
    while (static_cast<int>(threads.size()) < count())
        threads.emplace_back([this] { run(); });
    arrived.notify_one();
}

void Workers::run() {
    for (;;) {
        std::function<void()> task;
        {
            std::unique_lock<std::mutex> lock(mutex);
            arrived.wait(lock, [this] { return isEnding || !tasks.empty(); });
            if (isEnding)
                return;
            task = std::move(tasks.front());
            tasks.pop_front();
        }
        task();
    }
}

} // namespace standin
