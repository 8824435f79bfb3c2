// Test aid: sets or unsets an environment variable for the life of the object
// and restores the previous value afterwards.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace QnTest {

class ScopedEnv {
  public:
    // A null value unsets the variable.
    ScopedEnv(const char* name, const char* value) : _name(name) {
        if (const char* old = std::getenv(name)) _old = old;
        assign(value);
    }
    ~ScopedEnv() { assign(_old ? _old->c_str() : nullptr); }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

  private:
    void assign(const char* value) {
#if defined(_WIN32)
        _putenv_s(_name.c_str(), value ? value : "");
#else
        if (value) {
            setenv(_name.c_str(), value, 1);
        } else {
            unsetenv(_name.c_str());
        }
#endif
    }

    std::string _name;
    std::optional<std::string> _old;
};

}  // namespace QnTest
