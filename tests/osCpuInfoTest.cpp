#include <base/osCpuInfo.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <string>

#include <base/exInternalError.h>

TEST(OsCpuInfo, DescribesTheMachine) {
    std::string name = Qn::OsCpuInfo::getProcessorName().get();
    EXPECT_FALSE(name.empty());
    EXPECT_EQ(name.find('\n'), std::string::npos);
    EXPECT_GE(Qn::OsCpuInfo::getProcessorCount(), 1u);
    EXPECT_GT(Qn::OsCpuInfo::getMemorySize(), uint64_t{64} << 20);

    uint32_t line = Qn::OsCpuInfo::getCacheLineSize();
    EXPECT_EQ(line & (line - 1), 0u) << line;
    uint64_t previous = 0;
    for (int level = 1; level <= 3; ++level) {
        SCOPED_TRACE(level);
        uint64_t size = Qn::OsCpuInfo::getCacheSize(level);
        if (size == 0) break;  // no cache at this level, nor above
        EXPECT_GE(size, 1024u);
        EXPECT_GE(size, previous);
        previous = size;
    }
    EXPECT_EQ(Qn::OsCpuInfo::getCacheSize(9), 0u);
    EXPECT_THROW(Qn::OsCpuInfo::getCacheSize(0), Qn::ExInternalError);
}

TEST(OsCpuInfo, ByteOrderMatchesTheMemoryLayout) {
    const uint32_t value = 0x01020304;
    unsigned char first;
    std::memcpy(&first, &value, 1);
    EXPECT_EQ(Qn::OsCpuInfo::getByteOrder(),
              first == 4 ? Qn::OsCpuInfo::LittleEndian : Qn::OsCpuInfo::BigEndian);
}
