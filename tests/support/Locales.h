// Locales for tests of texts that are not UTF-8: compiled by the test itself, since no machine can be counted on to
// have them.
#pragma once

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <string>

#include <locale.h>
#include <stdlib.h>

namespace orrery::test {

// The calling thread's locale for as long as the object lives.
class ThreadLocale {
  public:
    explicit ThreadLocale(const char* name) : locale_(newlocale(LC_CTYPE_MASK, name, nullptr)) {
        if (locale_ != nullptr) previous_ = uselocale(locale_);
    }
    ThreadLocale(const ThreadLocale&) = delete;
    ThreadLocale& operator=(const ThreadLocale&) = delete;
    ~ThreadLocale() {
        if (locale_ == nullptr) return;
        uselocale(previous_);
        freelocale(locale_);
    }
    bool isThere() const { return locale_ != nullptr; }

  private:
    locale_t locale_;
    locale_t previous_ = nullptr;
};

// The process's. The compiled locales come this way: newlocale never frees the LOCPATH that it took apart, and a leak
// checker minds.
class ProcessLocale {
  public:
    explicit ProcessLocale(const char* name) : isThere_(std::setlocale(LC_CTYPE, name) != nullptr) {}
    ProcessLocale(const ProcessLocale&) = delete;
    ProcessLocale& operator=(const ProcessLocale&) = delete;
    ~ProcessLocale() { std::setlocale(LC_CTYPE, "C"); }
    bool isThere() const { return isThere_; }

  private:
    bool isThere_;
};

// A folder of locales that the test compiles.
class CompiledLocales : public testing::Test {
  protected:
    void SetUp() override {
        namespace fs = std::filesystem;
        ASSERT_TRUE(fs::exists("/usr/share/i18n/charmaps"))
            << "the sources of the system's locales are missing: install the package `locales`";
        std::string folder = (fs::temp_directory_path() / "orrery-locales-XXXXXX").string();
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        folder_ = folder;
        ASSERT_EQ(setenv("LOCPATH", folder_.c_str(), 1), 0);
    }
    void TearDown() override {
        unsetenv("LOCPATH");
        if (!folder_.empty()) std::filesystem::remove_all(folder_);
    }

    void Compile(const std::string& charmap, const std::string& name) {
        const std::string command =
            "localedef -c --quiet --no-archive -i POSIX -f '" + charmap + "' '" + folder_ + "/" + name + "' 2>&1";
        [[maybe_unused]] const int status = std::system(command.c_str()); // warnings count there: the result is judged
        ASSERT_TRUE(std::filesystem::exists(folder_ + "/" + name + "/LC_CTYPE")) << command;
    }

    std::string folder_;
};

} // namespace orrery::test
