#include <base/osLeafFileFilter.h>

#include <cstring>

#include <base/osFsUtils.h>

namespace Qn {

OsLeafFileFilter::OsLeafFileFilter(const char* suffix) : _suffixLength(0) {
    if (suffix == nullptr) return;
    _suffixLength = static_cast<int32_t>(std::strlen(suffix));
    _suffix.reset(new char[_suffixLength + 1]);
    std::memcpy(_suffix.get(), suffix, _suffixLength + 1);
}

bool OsLeafFileFilter::filter(const OsFilePath& candidate) const {
    if (OsFsUtils::isDirectory(candidate.getText())) return false;
    if (!_suffix) return true;
    OsFilePath base = candidate.getBaseName();
    size_t length = base.getLength();
    if (length < static_cast<size_t>(_suffixLength)) return false;
    return std::memcmp(base.getText() + length - _suffixLength, _suffix.get(), _suffixLength) == 0;
}

}  // namespace Qn
