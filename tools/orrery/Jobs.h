// Work that is done by several threads at a time and handed over in the order in which it was given.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace orrery::tool {

// `work` makes a Done of a Task, on any thread; `hand` takes each Done, one at a time, and answers false when no more
// are wanted. Neither throws.
template <class Task, class Done>
class Jobs {
  public:
    Jobs(unsigned threads, std::function<Done(const Task&)> work, std::function<bool(Done&)> hand)
        : work_(std::move(work)), hand_(std::move(hand)), most_(std::size_t{threads} * 4) {
        for (unsigned i = 0; threads > 1 && i < threads; ++i)
            threads_.emplace_back([this] { Run(); });
    }
    Jobs(const Jobs&) = delete;
    Jobs& operator=(const Jobs&) = delete;
    ~Jobs() { Finish(); }

    // Waits while much is under way. False when no more is wanted.
    bool Give(Task task) {
        if (threads_.empty()) {
            if (!isWanted_) return false;
            Done done = work_(task);
            isWanted_ = hand_(done);
            return isWanted_;
        }
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return tasks_.size() < most_ || !isWanted_; });
        if (!isWanted_) return false;
        tasks_.push_back({std::move(task), {}, State::Waits});
        changed_.notify_all();
        return true;
    }

    // All that was given is done and handed over.
    void Finish() {
        {
            const std::lock_guard lock(mutex_);
            isEnd_ = true;
            changed_.notify_all();
        }
        for (std::thread& thread : threads_)
            thread.join();
        threads_.clear();
    }

  private:
    enum class State { Waits, Works, IsDone };
    struct Item {
        Task task;
        Done done;
        State state;
    };

    void Run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            Item* next = nullptr;
            changed_.wait(lock, [&] {
                for (Item& item : tasks_) {
                    if (item.state != State::Waits) continue;
                    next = &item;
                    return true;
                }
                return isEnd_;
            });
            if (next == nullptr) return;
            next->state = State::Works;
            lock.unlock();
            Done done = work_(next->task); // a deque keeps its elements where they are
            lock.lock();
            next->done = std::move(done);
            next->state = State::IsDone;
            HandOver(lock);
            changed_.notify_all();
        }
    }

    // What is done at the front, by one thread at a time.
    void HandOver(std::unique_lock<std::mutex>& lock) {
        if (isHanding_) return;
        isHanding_ = true;
        while (!tasks_.empty() && tasks_.front().state == State::IsDone) {
            Done done = std::move(tasks_.front().done);
            tasks_.pop_front();
            changed_.notify_all();
            if (!isWanted_) continue;
            lock.unlock();
            const bool isWanted = hand_(done);
            lock.lock();
            isWanted_ = isWanted;
        }
        isHanding_ = false;
    }

    std::function<Done(const Task&)> work_;
    std::function<bool(Done&)> hand_;
    std::size_t most_;
    std::vector<std::thread> threads_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Item> tasks_; // in their order
    bool isEnd_ = false, isWanted_ = true, isHanding_ = false;
};

} // namespace orrery::tool
