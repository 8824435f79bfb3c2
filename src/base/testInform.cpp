#include <base/testInform.h>

#include <string>

#include <base/inEnv.h>
#include <base/osFileWriter.h>
#include <base/traceManager.h>

namespace Qn {

void TestInform::testNotPerformed(const char* text) { report("Test not performed: ", text); }

void TestInform::exceptionEncountered(const char* text) { report("Exception encountered: ", text); }

void TestInform::abnormalTermination(const char* text) { report("Abnormal termination: ", text); }

void TestInform::report(const char* prefix, const char* text) {
    try {
        const std::string message = std::string(prefix) + (text != nullptr ? text : "");
        const char* fileName = InEnv::getText("QN_RUN_TEST_MSGS");
        if (fileName != nullptr && *fileName != '\0') {
            try {
                OsFileWriter writer(fileName);
                writer.open();
                writer.write(message.data(), message.size());
                writer.write("\n", 1);
                writer.close();
                return;
            } catch (...) {
                // An unwritable file must not lose the verdict: the manager
                // gets it below.
            }
        }
        TraceManager::getInstance().print(message.c_str());
    } catch (...) {
        // Out of memory or a failing manager: nothing is left to report with.
    }
}

}  // namespace Qn
