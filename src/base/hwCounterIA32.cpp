#include <base/hwCounterIA32.h>

#include <ostream>

namespace Qn {

void HwCounterIA32::dump(std::ostream& stream) const {
    stream << "HwCounterIA32:\n"
           << "Rate         = " << _rateNumerator << "/" << _rateDenominator << "\n"
           << "Cycle        = " << _cycle << " seconds\n";
}

}  // namespace Qn
