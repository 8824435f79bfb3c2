// The umbrella header compiles on its own and brings in the whole interface.
#include <base/qnBase.h>

#include <gtest/gtest.h>

TEST(QnBaseHeader, BringsInTheInterface) {
    EXPECT_STREQ((Qn::OsFilePath("C:\\a") + "b").getText(), "C:\\a\\b");
}
