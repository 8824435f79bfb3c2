#include <base/inContextAliasMgrBase.h>

#include <gtest/gtest.h>

TEST(InContextAliasMgrBase, ApplicationNameIsTheProgramsBaseName) {
    EXPECT_STREQ(Qn::InContextAliasMgrBase::getApplicationName(), "qnbaseTests");
}
