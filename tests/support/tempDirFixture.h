// Test aid: a fixture that gives each test a fresh, empty temporary directory
// and removes it with everything inside after the test.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>

#include <base/osFilePath.h>

namespace QnTest {

// The Windows form of a native path, as the library's paths take it: on POSIX
// "/tmp/x" becomes "C:\tmp\x".
inline std::string toQnForm(const std::filesystem::path& native) {
    std::string text = native.string();
    if (!text.empty() && text[0] == '/') text = "C:" + text;
    for (char& c : text) {
        if (c == '/') c = '\\';
    }
    return text;
}

class TempDirFixture : public ::testing::Test {
  protected:
    void SetUp() override {
        static std::atomic<int> counter{0};
        const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
        std::string name =
            std::string("qn-") + info->test_suite_name() + "-" + info->name() + "-" +
            std::to_string(std::chrono::steady_clock::now().time_since_epoch().count()) + "-" +
            std::to_string(counter++);
        _native = std::filesystem::temp_directory_path() / name;
        std::filesystem::create_directories(_native);
        _dir = toQnForm(_native).c_str();
    }

    void TearDown() override {
        std::error_code ignored;
        std::filesystem::remove_all(_native, ignored);
    }

    // The directory in the library's form, and a path inside it.
    const Qn::OsFilePath& dir() const { return _dir; }
    Qn::OsFilePath path(const char* relative) const { return _dir + relative; }
    // The native path of an element inside the directory ("a/b" names a\b).
    std::filesystem::path native(const std::string& relative = "") const {
        return relative.empty() ? _native : _native / relative;
    }

    // Writes a file, creating its missing parent directories.
    void writeFile(const std::string& relative, const std::string& content) const {
        std::filesystem::create_directories(native(relative).parent_path());
        std::ofstream(native(relative), std::ios::binary) << content;
    }
    std::string readFile(const std::string& relative) const {
        std::ifstream in(native(relative), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    void makeDir(const std::string& relative) const {
        std::filesystem::create_directories(native(relative));
    }

  private:
    std::filesystem::path _native;
    Qn::OsFilePath _dir;
};

}  // namespace QnTest
