// Test aid: a heap block that the leak checker sees as lost. Its address is
// kept only in a disguised form, and it is made on another thread so that no
// copy of the address stays in the caller's registers or stack.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <thread>

namespace QnTest {

class LostBlock {
  public:
    // Allocates a block of 64 bytes and forgets where it is.
    void lose() {
        std::thread([this] {
            _disguised = reinterpret_cast<uintptr_t>(std::malloc(64)) ^ disguise;
        }).join();
    }
    // Frees the block, so the program ends without leaks.
    void free() {
        std::free(reinterpret_cast<void*>(_disguised ^ disguise));
        _disguised = disguise;
    }

  private:
    static constexpr uintptr_t disguise = static_cast<uintptr_t>(0x5A5A5A5A5A5A5A5Aull);
    uintptr_t _disguised = disguise;
};

}  // namespace QnTest
