// Order of initialisation and finalisation of one pass, with the library's own
// packages registered beside the program's.
#include <gtest/gtest.h>

#include <sstream>

#include <base/inBasePackages.h>
#include <base/inContextAliasMgrBase.h>
#include <base/inInitMgr.h>
#include <support/captureStream.h>
#include <support/testPackage.h>

namespace QnInit {
class P;
class Q;
class aHub;
class aLeaf1;
class aLeaf2;
class aLeaf3;
class zLeaf;
class zMid;
}  // namespace QnInit

// Registered as R, Q, P: R needs Q, Q needs P.
QN_TEST_PACKAGE(R, QnInit::Q);
QN_TEST_PACKAGE(Q, QnInit::P);
QN_TEST_PACKAGE(P);
// Two packages without dependencies, registered against name order.
QN_TEST_PACKAGE(Zeta);
QN_TEST_PACKAGE(Alpha);
// aFour needs aHub, which needs three others: count 4. zTwo needs zMid, which
// needs zLeaf: count 2. zTwo comes first although its name sorts last.
QN_TEST_PACKAGE(aLeaf1);
QN_TEST_PACKAGE(aLeaf2);
QN_TEST_PACKAGE(aLeaf3);
QN_TEST_PACKAGE(aHub, QnInit::aLeaf1, QnInit::aLeaf2, QnInit::aLeaf3);
QN_TEST_PACKAGE(aFour, QnInit::aHub);
QN_TEST_PACKAGE(zLeaf);
QN_TEST_PACKAGE(zMid, QnInit::zLeaf);
QN_TEST_PACKAGE(zTwo, QnInit::zMid);
// A second object of P's type is dropped: P is initialised once.
static Qn::InInit<QnInit::P> secondP("P", Qn::InPackageDeps<>{},
                                     [] { QnTest::packageLog().push_back("init P again"); });

namespace {

size_t position(const std::vector<std::string>& log, const std::string& line) {
    for (size_t i = 0; i < log.size(); ++i)
        if (log[i] == line) return i;
    ADD_FAILURE() << "missing " << line;
    return log.size();
}

}  // namespace

TEST(InInitMgr, InitialisesInDependencyOrderAndFinalisesInReverse) {
    const char* argvStorage[] = {"host", "-t", "4"};
    int argc = 3;
    const char* const* argv = argvStorage;
    Qn::InInitMgr& manager = Qn::InInitMgr::getInstance();
    manager.initialize(argc, argv);

    EXPECT_EQ(argc, 0);
    EXPECT_EQ(argv, nullptr);
    EXPECT_EQ(Qn::InContextAliasMgrBase::args(),
              (Qn::InContextAliasMgrBase::ArgStore{"host", "-t", "4"}));
    EXPECT_TRUE(Qn::InInit<QnInit::base>::isInitialized());
    EXPECT_TRUE(Qn::InInit<QnInit::R>::isInitialized());

    const auto inits = QnTest::packageLogLines("init ");
    EXPECT_EQ(inits.size(), 13u) << "P is initialised once";
    EXPECT_LT(position(inits, "init P"), position(inits, "init Q"));
    EXPECT_LT(position(inits, "init Q"), position(inits, "init R"));
    EXPECT_LT(position(inits, "init Alpha"), position(inits, "init Zeta"));
    EXPECT_LT(position(inits, "init zTwo"), position(inits, "init aFour"));
    EXPECT_LT(position(inits, "init aHub"), position(inits, "init aFour"));

    std::ostringstream dump;
    dump << manager;
    EXPECT_NE(dump.str().find("No packages waiting to be initialize.\n"), std::string::npos);
    EXPECT_NE(dump.str().find("26 packages currently saved:\n"), std::string::npos);
    EXPECT_NE(dump.str().find("\t'aFour' Initialized (4 dependencies)\n"), std::string::npos);
    EXPECT_NE(dump.str().find("\t'base' Initialized (12 dependencies)\n"), std::string::npos);
    EXPECT_EQ(dump.str().find("cycle"), std::string::npos);

    std::ostringstream cycles;
    manager.reportCycles(cycles);
    EXPECT_EQ(cycles.str(), "No dependency cycles to report.\n");

    manager.finalize();
    EXPECT_FALSE(Qn::InInit<QnInit::R>::isInitialized());
    EXPECT_TRUE(Qn::InContextAliasMgrBase::args().empty());
    const auto finis = QnTest::packageLogLines("fini ");
    std::vector<std::string> reversed;
    for (auto it = inits.rbegin(); it != inits.rend(); ++it)
        reversed.push_back("fini " + it->substr(5));
    EXPECT_EQ(finis, reversed);
}
