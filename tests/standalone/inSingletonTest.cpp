// The states of a package-owned singleton and the texts of its misuse.
#include <gtest/gtest.h>

#include <string>

#include <base/inSingleton.h>
#include <base/inSingletonEx.h>
#include <support/reasonOf.h>

namespace QnTestSingleton {

struct Widget {
    explicit Widget(int v) : value(v) {}
    virtual ~Widget() { ++destroyed; }
    int value;
    static inline int destroyed = 0;
};

}  // namespace QnTestSingleton

using QnTestSingleton::Widget;
using Singleton = Qn::InSingleton<Widget>;

using QnTest::reasonOf;

TEST(InSingleton, StateTransitionsAndMessages) {
    const std::string name = "Qn::InSingleton<QnTestSingleton::Widget>";
    EXPECT_EQ(reasonOf<Qn::InSingletonEx::ExNotInitialized>([] { Singleton::getInstance(); }),
              name + " is not initialized.");
    EXPECT_EQ(reasonOf<Qn::InSingletonEx::ExNotInitialized>([] { Singleton::destroy(); }),
              name + " is not initialized.");

    Singleton::create(new Widget(1));
    EXPECT_EQ(Singleton::getInstance().value, 1);
    Widget second(2);
    EXPECT_EQ(
        reasonOf<Qn::InSingletonEx::ExAlreadyInitialized>([&] { Singleton::create(&second); }),
        name + " has already been initialized.");
    EXPECT_EQ(Singleton::getInstance().value, 1) << "the first instance stays";

    Singleton::destroy();
    EXPECT_EQ(Widget::destroyed, 1);
    EXPECT_EQ(Singleton::getState(), Singleton::Destroyed);
    EXPECT_THROW(Singleton::getInstance(), Qn::InSingletonEx::ExNotInitialized);
    EXPECT_EQ(reasonOf<Qn::InSingletonEx::ExAlreadyDestroyed>([&] { Singleton::create(&second); }),
              name + " has already been destroyed.");
    EXPECT_EQ(reasonOf<Qn::InSingletonEx::ExAlreadyDestroyed>([] { Singleton::destroy(); }),
              name + " has already been destroyed.");
    EXPECT_THROW(Singleton::destroy(), Qn::InEx);
}
