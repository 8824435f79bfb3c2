// Qn::RnSamplePicture: an SVG picture of sample sets, one panel per set side by
// side, for people to judge how evenly a generator covers its domain.
//
// A set of dimension 2 is drawn as points in the unit square (y upwards); a
// set of dimension 3 as directions projected along z onto the unit disk, filled
// for z >= 0 and hollow below; a set of dimension 1 as ticks on the unit
// interval. Other dimensions show their first two components in the square.
//
// Thread-safety: none.
#pragma once

#include <string>

#include <base/qnExport.h>
#include <base/rnSampleSet.h>
#include <base/vector.h>

namespace Qn {

class QN_BASE_API RnSamplePicture {
  public:
    explicit RnSamplePicture(std::string title);

    // Adds a panel showing set, labelled with the set's name.
    void addPanel(const RnSampleSet<float>& set);
    void addPanel(const RnSampleSet<double>& set);

    // The picture as SVG text.
    std::string toSvg() const;
    // Writes the picture to path; raises RnEx::ExSampleFileAccess on failure.
    void write(const char* path) const;

    // Writes to path a picture that compares count uniform pseudo-random points
    // (RnNumRecUniformRng, seed 0) with the first count points of the Halton
    // sequence in bases 2 and 3.
    static void writeUniformVersusHalton(const char* path, unsigned int count = 256);

  private:
    struct Panel {
        std::string label;
        unsigned int dimension;
        Vector<double> coords;
    };
    template <class T>
    void add(const RnSampleSet<T>& set);
    static void drawPanel(std::string& svg, const Panel& panel, double left, double top);

    std::string _title;
    Vector<Panel> _panels;
};

}  // namespace Qn
