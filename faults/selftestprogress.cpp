#include "faults/selftestprogress.h"

namespace ovra {
namespace GlobalElements {

int SelftestProgress::Count(Row row)
{
    bool &counted = m_counted[static_cast<int>(row)];
    if (counted)
        return 0;
    counted = true;
    return 25;
}

} // namespace GlobalElements
} // namespace ovra
