// Threads that paint beside the thread of the interface.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace standin {

class Workers {
public:
    Workers() = default;
    ~Workers(); // waits for what goes on; what did not begin never does
    Workers(const Workers&) = delete;
    Workers& operator=(const Workers&) = delete;

    // How many share a work: one for each core, and two on a machine with one.
    static int count();
    // Runs the task on a thread of its own choice. The threads begin with the first task.
    void start(std::function<void()> task);

private:
    void run();

    std::mutex mutex;
    std::condition_variable arrived;
    std::deque<std::function<void()>> tasks;
    std::vector<std::thread> threads;
    bool isEnding = false;
};

} // namespace standin
