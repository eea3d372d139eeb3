// Many pieces of work on all cores, with their results in order.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <vector>

namespace trabeon {

/// Does work(0) to work(count - 1) on all cores that this process may use, and calls take(result)
/// in the order of the numbers, on the thread of the caller. Only some results wait at a time, so
/// memory does not grow with the count. An exception of `work` ends everything and reaches the
/// caller.
template <class Result>
class InOrder {
  public:
    using Work = std::function<Result(std::size_t)>;
    using Take = std::function<void(const Result&)>;

    static void run(std::size_t count, const Work& work, const Take& take) {
        const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
        if (const auto workers = std::min(count, cores); workers > 1)
            InOrder(count, workers, work).run(workers, take);
        else
            for (std::size_t i = 0; i < count; ++i)
                take(work(i));
    }

  private:
    /// Results of neighbours, which pass from thread to thread together: a switch of threads costs
    /// as much as a small project.
    using Group = std::vector<Result>;
    static constexpr std::size_t largestGroup = 32;
    static constexpr std::size_t waitingGroups = 4;  // for each worker

    InOrder(std::size_t count, std::size_t workers, const Work& work)
        : count_(count),
          groupSize_(std::clamp<std::size_t>(count / workers / 8, 1, largestGroup)),
          groups_((count + groupSize_ - 1) / groupSize_),
          work_(work),
          results_(workers * waitingGroups) {}

    void run(std::size_t workers, const Take& take) {
        const Joined threads(*this, workers);
        for (std::size_t group = 0; group < groups_; ++group)
            for (const auto& result : threads.none() ? resultsOf(group) : next(group))
                take(result);
    }

    [[nodiscard]] Group resultsOf(std::size_t group) const {
        Group results;
        const auto end = std::min(count_, (group + 1) * groupSize_);
        for (auto i = group * groupSize_; i < end; ++i)
            results.push_back(work_(i));
        return results;
    }

    Group next(std::size_t group) {
        std::unique_lock lock(mutex_);
        auto& place = results_[group % results_.size()];
        arrived_.wait(lock, [&] { return place.has_value(); });
        if (failure_)
            std::rethrow_exception(failure_);
        Group results = std::move(*place);
        place.reset();
        ++taken_;
        freed_.notify_all();
        return results;
    }

    void workOn() {
        std::unique_lock lock(mutex_);
        while (true) {
            freed_.wait(lock,
                        [&] { return begun_ == groups_ || begun_ < taken_ + results_.size(); });
            if (begun_ == groups_)
                return;
            const auto group = begun_++;
            lock.unlock();
            Group results;
            std::exception_ptr failure;
            try {
                results = resultsOf(group);
            } catch (...) {
                failure = std::current_exception();
            }
            lock.lock();
            if (failure)
                failure_ = failure;
            results_[group % results_.size()] = std::move(results);
            arrived_.notify_one();
        }
    }

    void stop() {
        const std::lock_guard lock(mutex_);
        begun_ = groups_;
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

    std::size_t count_, groupSize_, groups_, begun_ = 0, taken_ = 0;  // begun and taken: groups
    const Work& work_;
    std::vector<std::optional<Group>> results_;  // of a group at its number modulo the size
    std::exception_ptr failure_;
    std::mutex mutex_;
    std::condition_variable arrived_, freed_;
};

}  // namespace trabeon
