#include <base/rnHistogramBiRng.h>
#include <base/rnHistogramRng.h>
#include <base/rnSamplePicture.h>
#include <base/rnSampleSet.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include <base/rnEx.h>
#include <base/rnHaltonBiRng.h>
#include <base/rnHaltonMultiRng.h>
#include <base/rnNumRecUniformRng.h>
#include <base/rnTextFile.h>
#include <base/rnUniformSphericalRng.h>
#include <support/rnTestSupport.h>

namespace {

template <class T>
class RnSampleExportTest : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(RnSampleExportTest, Precisions);

std::string tempPath(const char* name) { return ::testing::TempDir() + name; }

}  // namespace

TYPED_TEST(RnSampleExportTest, HistogramInvertsItsCumulativeTable) {
    using T = TypeParam;
    const T weights[4] = {1, 0, 2, 1};
    RnTest::ScriptedRng<T> script({T(0), T(0.125), T(0.25), T(0.5), T(0.99999), T(1)});
    Qn::RnHistogramRng<T> histogram(&script, weights, 4, Qn::Interval<T>(T(2), T(6)));
    EXPECT_EQ(histogram(), T(2));
    EXPECT_EQ(histogram(), T(2.5));
    EXPECT_EQ(histogram(), T(4));  // the empty bin [3, 4) is skipped
    EXPECT_EQ(histogram(), T(4.5));
    EXPECT_LT(histogram(), T(6));
    EXPECT_LT(histogram(), T(6));  // a source value of 1 stays inside the range
    EXPECT_EQ(histogram.getPdf(T(2.5)), T(0.25));
    EXPECT_EQ(histogram.getPdf(T(3.5)), T(0));
    EXPECT_EQ(histogram.getPdf(T(4)), T(0.5));
    EXPECT_EQ(histogram.getPdf(T(6)), T(0));
    EXPECT_EQ(histogram.getEfficientMin(), T(2));
    EXPECT_EQ(histogram.getEfficientWidth(), T(4));
    EXPECT_STREQ(histogram.getName(), "Histogram");

    // Drawn from a pseudo-random source, the bins fill in proportion.
    Qn::RnNumRecUniformRng<T> uniform(4);
    Qn::RnHistogramRng<T> drawn(&uniform, weights, 4);
    std::vector<int> counts(4, 0);
    for (int i = 0; i < 8000; ++i) ++counts[int(drawn() * 4)];
    EXPECT_EQ(counts[1], 0);
    EXPECT_NEAR(counts[0], 2000, 150);
    EXPECT_NEAR(counts[2], 4000, 150);

    const T bad[2] = {1, -1}, zero[2] = {0, 0};
    auto reason = [&](const T* w, unsigned int n, Qn::Interval<T> range, Qn::RnRng<T>* src) {
        try {
            Qn::RnHistogramRng<T>(src, w, n, range);
        } catch (const Qn::RnEx::ExInvalidHistogram& e) {
            return std::string(e.what());
        }
        return std::string("<nothing raised>");
    };
    const Qn::Interval<T> unit(0, 1);
    EXPECT_EQ(reason(bad, 2, unit, &uniform),
              "Invalid histogram: weight 1 is negative or not finite.");
    EXPECT_EQ(reason(zero, 2, unit, &uniform), "Invalid histogram: the weights sum to 0.");
    EXPECT_EQ(reason(weights, 0, unit, &uniform), "Invalid histogram: there are no bins.");
    EXPECT_EQ(reason(weights, 4, Qn::Interval<T>(1, 1), &uniform),
              "Invalid histogram: the range is empty or not finite.");
    EXPECT_EQ(reason(weights, 4, unit, nullptr), "Invalid histogram: the source is null.");
}

TYPED_TEST(RnSampleExportTest, TwoDimensionalHistogram) {
    using T = TypeParam;
    // Two rows of three cells; the middle of the lower row is empty.
    const T weights[6] = {1, 0, 1, 2, 2, 2};
    Qn::RnHaltonBiRng<T> halton;
    Qn::RnHistogramBiRng<T> histogram(&halton, weights, 3, 2, Qn::Interval<T>(0, 3),
                                      Qn::Interval<T>(0, 2));
    std::vector<T> x(3000), y(3000);
    histogram.getSequence(3000, x.data(), y.data());
    int cells[2][3] = {};
    for (int i = 0; i < 3000; ++i) ++cells[int(y[i])][int(x[i])];
    EXPECT_EQ(cells[0][1], 0);
    EXPECT_NEAR(cells[0][0], 375, 15);
    EXPECT_NEAR(cells[1][2], 750, 15);
    EXPECT_NEAR(histogram.getPdf(T(0.5), T(0.5)), 0.125, 1e-6);
    EXPECT_EQ(histogram.getPdf(T(1.5), T(0.5)), T(0));
    EXPECT_NEAR(histogram.getPdf(T(2.5), T(1.5)), 0.25, 1e-6);
    EXPECT_EQ(histogram.getPdf(T(3), T(1)), T(0));
    T w, h;
    histogram.getEfficientWidth(w, h);
    EXPECT_EQ(w, T(3));
    EXPECT_EQ(h, T(2));
}

TYPED_TEST(RnSampleExportTest, SceneTextRoundTrip) {
    using T = TypeParam;
    Qn::RnHaltonMultiRng<T, 3> halton;
    Qn::RnSampleSet<T> set(3, "Halton 2 3 5");
    set.append(halton, 100);
    Qn::RnNumRecUniformRng<T> uniform;
    Qn::RnSampleSet<T> line(1);
    line.append(uniform, 5);
    EXPECT_EQ(line.toSceneText().substr(0, 12), "samples 1 5 ");

    const std::string path = tempPath("rnSampleSet.txt");
    set.writeSceneText(path.c_str());
    const auto back = Qn::RnSampleSet<T>::readSceneText(path.c_str());
    std::remove(path.c_str());
    EXPECT_EQ(back.getName(), "Halton 2 3 5");
    ASSERT_EQ(back.getDimension(), 3u);
    ASSERT_EQ(back.getCount(), 100u);
    for (unsigned int i = 0; i < 100; ++i)
        for (int k = 0; k < 3; ++k) ASSERT_EQ(back.getPoint(i)[k], set.getPoint(i)[k]);

    const auto parsed = Qn::RnSampleSet<T>::parseSceneText(
        "# two points\r\n\nsamples 2 2\n 0.5 0.25\n# between\n1e-3\t0\nend\n\n", "text");
    EXPECT_EQ(parsed.getName(), "");
    EXPECT_EQ(parsed.getPoint(1)[0], T(1e-3));

    const std::vector<std::pair<const char*, const char*>> broken = {
        {"", "line 0: expected 'samples'"},
        {"sample 2 1\n", "line 1: expected 'samples'"},
        {"samples 0 1\n", "line 1: dimension out of range"},
        {"samples 2 x\n", "line 1: bad count"},
        {"samples 2 2\n0 0\nend\n", "line 3: expected 2 points"},
        {"samples 2 1\n0 zero\nend\n", "line 2: bad coordinate"},
        {"samples 2 1\n0 0 0\nend\n", "line 2: too many coordinates"},
        {"samples 2 1\n0\nend\n", "line 2: missing coordinate"},
        {"samples 2 1\n0 0\n", "line 2: expected 'end'"},
        {"samples 2 1\n0 0\nend\n1\n", "line 4: text after 'end'"},
        {"samples 1 4000000000\n0.5\n", "line 2: expected 4000000000 points"},
    };
    for (const auto& [text, message] : broken) {
        SCOPED_TRACE(text);
        try {
            Qn::RnSampleSet<T>::parseSceneText(text, "bad.txt");
            ADD_FAILURE() << "no exception";
        } catch (const Qn::RnEx::ExSampleFileSyntax& e) {
            EXPECT_EQ(std::string(e.what()),
                      std::string("Malformed sample file 'bad.txt': ") + message + ".");
        }
    }
    EXPECT_THROW(Qn::RnSampleSet<T>::readSceneText(tempPath("no/such/file").c_str()),
                 Qn::RnEx::ExSampleFileAccess);
}

TEST(RnSamplePicture, UniformVersusHaltonAndDirections) {
    const std::string path = tempPath("rnSamplePicture.svg");
    Qn::RnSamplePicture::writeUniformVersusHalton(path.c_str());
    const std::string svg = Qn::RnTextFile::read(path.c_str());
    std::remove(path.c_str());
    EXPECT_EQ(svg.rfind("<?xml", 0), 0u);
    EXPECT_NE(svg.find("256 uniform points and 256 Halton points"), std::string::npos);
    std::size_t dots = 0;
    for (std::size_t at = svg.find("<circle"); at != std::string::npos;
         at = svg.find("<circle", at + 1))
        ++dots;
    EXPECT_EQ(dots, 512u);
    EXPECT_EQ(svg.substr(svg.size() - 7), "</svg>\n");

    Qn::RnHaltonBiRng<float> halton;
    Qn::RnUniformSphericalRng<float> sphere(&halton);
    Qn::RnSampleSet<float> directions(3, "Sphere <&>");
    directions.appendDirections(sphere, 10);
    Qn::RnSamplePicture picture("Directions");
    picture.addPanel(directions);
    const std::string text = picture.toSvg();
    EXPECT_NE(text.find("Sphere &lt;&amp;&gt;"), std::string::npos);
    EXPECT_NE(text.find("fill=\"none\"/>"), std::string::npos);  // directions below the disk
    EXPECT_THROW(picture.write(tempPath("no/such/dir/x.svg").c_str()),
                 Qn::RnEx::ExSampleFileAccess);
}
