// Many pieces of work on all cores, with their results in order.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace trabeon {

/// Does work(0) to work(count - 1) on all cores that this process may use, and calls take(result)
/// in the order of the numbers, on the thread of the caller. `work` must not throw. Only some
/// results wait at a time, so memory does not grow with the count.
template <class Result>
class InOrder {
  public:
    using Work = std::function<Result(std::size_t)>;
    using Take = std::function<void(Result)>;

    static void run(std::size_t count, const Work& work, const Take& take) {
        const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
        if (const auto workers = std::min(count, cores); workers > 1)
            InOrder(count, workers * waitingPerWorker, work).run(workers, take);
        else
            for (std::size_t i = 0; i < count; ++i)
                take(work(i));
    }

  private:
    static constexpr std::size_t waitingPerWorker = 16;

    InOrder(std::size_t count, std::size_t waiting, const Work& work)
        : count_(count), work_(work), results_(waiting) {}

    void run(std::size_t workers, const Take& take) {
        const Joined threads(*this, workers);
        for (std::size_t i = 0; i < count_; ++i)
            take(threads.none() ? work_(i) : next(i));
    }

    Result next(std::size_t i) {
        std::unique_lock lock(mutex_);
        auto& place = results_[i % results_.size()];
        arrived_.wait(lock, [&] { return place.has_value(); });
        Result result = std::move(*place);
        place.reset();
        ++taken_;
        freed_.notify_all();
        return result;
    }

    void workOn() {
        std::unique_lock lock(mutex_);
        while (true) {
            freed_.wait(lock,
                        [&] { return begun_ == count_ || begun_ < taken_ + results_.size(); });
            if (begun_ == count_)
                return;
            const auto i = begun_++;
            lock.unlock();
            auto result = work_(i);
            lock.lock();
            results_[i % results_.size()] = std::move(result);
            arrived_.notify_one();
        }
    }

    void stop() {
        const std::lock_guard lock(mutex_);
        begun_ = count_;
        freed_.notify_all();
    }

    /// The threads, as many as the system gives. They end with this object.
    class Joined {
      public:
        Joined(InOrder& owner, std::size_t workers) : owner_(owner) {
            try {
                while (threads_.size() < workers)
                    threads_.emplace_back([&owner] { owner.workOn(); });
            } catch (const std::system_error&) {  // the system gives no more
            }
        }
        Joined(const Joined&) = delete;
        Joined& operator=(const Joined&) = delete;
        ~Joined() {
            owner_.stop();
            for (auto& thread : threads_)
                thread.join();
        }
        [[nodiscard]] bool none() const { return threads_.empty(); }

      private:
        InOrder& owner_;
        std::vector<std::thread> threads_;
    };

    std::size_t count_, begun_ = 0, taken_ = 0;
    const Work& work_;
    std::vector<std::optional<Result>> results_;  // of number i at i modulo the size
    std::mutex mutex_;
    std::condition_variable arrived_, freed_;
};

}  // namespace trabeon
