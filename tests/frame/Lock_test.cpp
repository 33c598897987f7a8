#include "frame/Lock.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace orrery {
namespace {

TEST(LockThread, IsLockedAgainByItsHolderAndHeldUntilTheLastUnlock) {
    RecursiveLock lock;
    int inside = 0, most = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int turn = 0; turn < 2000; ++turn) {
                const std::lock_guard<RecursiveLock> outer(lock);
                ++inside;
                {
                    const std::lock_guard<RecursiveLock> inner(lock);
                    most = std::max(most, inside);
                }
                most = std::max(most, inside); // still alone
                --inside;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(inside, 0);
    EXPECT_EQ(most, 1);
}

TEST(LockThread, IsTriedWithoutWaiting) {
    RecursiveLock lock;
    ASSERT_TRUE(lock.try_lock());
    EXPECT_TRUE(lock.try_lock()); // again, by its holder
    bool others = true;
    std::thread([&] { others = lock.try_lock(); }).join();
    EXPECT_FALSE(others);
    lock.unlock();
    std::thread([&] { others = lock.try_lock(); }).join();
    EXPECT_FALSE(others);
    lock.unlock();
    std::thread([&] {
        others = lock.try_lock();
        if (others) lock.unlock();
    }).join();
    EXPECT_TRUE(others);
}

} // namespace
} // namespace orrery
