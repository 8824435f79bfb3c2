// Windows companion of PrSleeper: the system sleep is a high-resolution waitable
// timer where the system has them (Windows 10 1803 and later), else Sleep with
// whole milliseconds.
#include <base/prSleeper.h>

#include <windows.h>

#ifndef CREATE_WAITABLE_TIMER_HIGH_RESOLUTION
#define CREATE_WAITABLE_TIMER_HIGH_RESOLUTION 0x00000002
#endif

namespace Qn {

void PrSleeper::performSleep(double seconds) {
    HANDLE timer = CreateWaitableTimerExW(nullptr, nullptr, CREATE_WAITABLE_TIMER_HIGH_RESOLUTION,
                                          TIMER_ALL_ACCESS);
    if (timer != nullptr) {
        LARGE_INTEGER due;
        due.QuadPart = -static_cast<LONGLONG>(seconds * 1e7);  // relative, in 100 ns
        if (SetWaitableTimer(timer, &due, 0, nullptr, nullptr, FALSE)) {
            WaitForSingleObject(timer, INFINITE);
            CloseHandle(timer);
            return;
        }
        CloseHandle(timer);
    }
    Sleep(static_cast<DWORD>(seconds < 2e6 ? seconds * 1e3 : 2e9));
}

}  // namespace Qn
