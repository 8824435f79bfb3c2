#include <base/rnSamplePicture.h>

#include <cstdio>

#include <base/rnHaltonBiRng.h>
#include <base/rnNumRecUniformRng.h>
#include <base/rnSeparableBiRng.h>
#include <base/rnTextFile.h>

namespace Qn {

namespace {

constexpr double PanelSize = 256;
constexpr double Margin = 24;
constexpr double TitleHeight = 32;
constexpr double LabelHeight = 24;

std::string escaped(const std::string& text) {
    std::string out;
    for (char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            case '"':
                out += "&quot;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

// Appends one formatted element; the formats hold numbers only.
template <class... Numbers>
void append(std::string& svg, const char* format, Numbers... numbers) {
    char line[256];
    std::snprintf(line, sizeof line, format, numbers...);
    svg += line;
}

}  // namespace

RnSamplePicture::RnSamplePicture(std::string title) : _title(std::move(title)) {}

template <class T>
void RnSamplePicture::add(const RnSampleSet<T>& set) {
    Panel panel{set.getName(), set.getDimension(), {}};
    const std::size_t size = std::size_t(set.getCount()) * set.getDimension();
    const T* first = set.getCount() ? set.getPoint(0) : nullptr;
    panel.coords.assign(first, first + size);
    _panels.push_back(std::move(panel));
}

void RnSamplePicture::addPanel(const RnSampleSet<float>& set) { add(set); }
void RnSamplePicture::addPanel(const RnSampleSet<double>& set) { add(set); }

void RnSamplePicture::drawPanel(std::string& svg, const Panel& panel, double left, double top) {
    const double s = PanelSize;
    const unsigned int d = panel.dimension;
    const std::size_t count = panel.coords.size() / d;
    if (d == 3) {
        append(svg, "<circle cx=\"%g\" cy=\"%g\" r=\"%g\" fill=\"none\" stroke=\"#888\"/>\n",
               left + s / 2, top + s / 2, s / 2);
    } else {
        append(svg,
               "<rect x=\"%g\" y=\"%g\" width=\"%g\" height=\"%g\" fill=\"none\" "
               "stroke=\"#888\"/>\n",
               left, top, s, s);
    }
    for (std::size_t i = 0; i < count; ++i) {
        const double* p = panel.coords.data() + i * d;
        double x, y;
        const char* fill = "#000";
        if (d == 1) {
            x = left + p[0] * s;
            y = top + s / 2;
        } else if (d == 3) {
            x = left + (p[0] + 1) * s / 2;
            y = top + (1 - p[1]) * s / 2;
            if (p[2] < 0) fill = "none";
        } else {
            x = left + p[0] * s;
            y = top + (1 - p[1]) * s;
        }
        append(svg, "<circle cx=\"%.2f\" cy=\"%.2f\" r=\"%g\" stroke=\"#000\" stroke-width=\"0.5\"",
               x, y, 1.5);
        svg += " fill=\"" + std::string(fill) + "\"/>\n";
    }
    append(svg, "<text x=\"%g\" y=\"%g\" text-anchor=\"middle\" font-size=\"14\">", left + s / 2,
           top + s + 18);
    svg += escaped(panel.label) + "</text>\n";
}

std::string RnSamplePicture::toSvg() const {
    const std::size_t panels = _panels.empty() ? 1 : _panels.size();
    const double width = Margin + double(panels) * (PanelSize + Margin);
    const double height = TitleHeight + PanelSize + LabelHeight + Margin;
    std::string svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    append(svg,
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%g\" height=\"%g\" "
           "viewBox=\"0 0 %g %g\">\n<rect width=\"100%%\" height=\"100%%\" fill=\"#fff\"/>\n",
           width, height, width, height);
    append(svg, "<text x=\"%g\" y=\"%g\" text-anchor=\"middle\" font-size=\"16\">", width / 2,
           22.0);
    svg += escaped(_title) + "</text>\n";
    for (std::size_t i = 0; i < _panels.size(); ++i)
        drawPanel(svg, _panels[i], Margin + double(i) * (PanelSize + Margin), TitleHeight);
    svg += "</svg>\n";
    return svg;
}

void RnSamplePicture::write(const char* path) const { RnTextFile::write(path, toSvg()); }

void RnSamplePicture::writeUniformVersusHalton(const char* path, unsigned int count) {
    RnNumRecUniformRng<double> uniform(0);
    RnSeparableBiRng<double> uniformPoints(&uniform);
    RnHaltonBiRng<double> halton;
    RnSampleSet<double> uniformSet(2, "Uniform (Numerical Recipes RAN2)");
    RnSampleSet<double> haltonSet(2, "Halton (bases 2, 3)");
    uniformSet.append(uniformPoints, count);
    haltonSet.append(halton, count);
    RnSamplePicture picture(std::to_string(count) + " uniform points and " + std::to_string(count) +
                            " Halton points");
    picture.addPanel(uniformSet);
    picture.addPanel(haltonSet);
    picture.write(path);
}

}  // namespace Qn
