// Qn::RnSampleSet<T>: a set of sample points of one dimension, filled from the
// generators and kept as scene text that a renderer can read back.
//
// Scene text is line-oriented; blank lines and lines starting with '#' are
// ignored anywhere:
//
//   samples <dimension> <count> <name>
//   <dimension numbers separated by blanks>      one line per point, count lines
//   end
//
// The name is the rest of the header line (it may be empty or hold blanks).
// Numbers are written in the shortest form that reads back to the same value,
// independent of the locale, so a set survives writing and reading unchanged.
//
// Thread-safety: none.
#pragma once

#include <string>
#include <string_view>

#include <base/assertions.h>
#include <base/qnExport.h>
#include <base/rnBiRng.h>
#include <base/rnMultiRng.h>
#include <base/rnRng.h>
#include <base/vector.h>

namespace Qn {

template <class T>
class RnSampleSet {
  public:
    static constexpr unsigned int MaxDimension = 64;

    // REQUIRES: 1 <= dimension <= MaxDimension.
    explicit RnSampleSet(unsigned int dimension, std::string name = std::string());

    unsigned int getDimension() const { return _dimension; }
    unsigned int getCount() const { return static_cast<unsigned int>(_coords.size() / _dimension); }
    const std::string& getName() const { return _name; }
    void setName(std::string name) { _name = std::move(name); }
    // Point i, getDimension() values.
    const T* getPoint(unsigned int i) const { return _coords.data() + std::size_t(i) * _dimension; }
    // Appends point[0 .. getDimension()-1].
    void addPoint(const T* point) { _coords.insert(_coords.end(), point, point + _dimension); }
    void clear() { _coords.clear(); }

    // Append n points of a generator, drawn with its getSequence. REQUIRES: the
    // set has the generator's dimension.
    void append(RnRng<T>& rng, unsigned int n);
    void append(RnBiRng<T>& rng, unsigned int n);
    template <int N>
    void append(RnMultiRng<T, N>& rng, unsigned int n);
    // Appends n directions (x, y, z) of a direction generator. REQUIRES: dimension 3.
    template <class Directions>
    void appendDirections(Directions& directions, unsigned int n);

    // The set as scene text.
    std::string toSceneText() const;
    // Writes the scene text to path; raises RnEx::ExSampleFileAccess on failure.
    void writeSceneText(const char* path) const;
    // The set of a scene text; source names it in errors. Raises
    // RnEx::ExSampleFileSyntax when the text does not follow the format.
    static RnSampleSet parseSceneText(std::string_view text, const char* source);
    // Reads the scene text at path (RnEx::ExSampleFileAccess or ExSampleFileSyntax).
    static RnSampleSet readSceneText(const char* path);

  private:
    // Fills the new points' components, one array per component, then
    // interleaves them into _coords.
    template <class Fill>
    void appendComponents(unsigned int dimension, unsigned int n, Fill fill);

    unsigned int _dimension;
    std::string _name;
    Vector<T> _coords;
};

extern template class QN_BASE_API RnSampleSet<float>;
extern template class QN_BASE_API RnSampleSet<double>;

}  // namespace Qn

#include <base/rnSampleSet.imp>
