#include "StyleCases.h"

namespace StyleBenchmark {

std::vector<Case> allCases()
{
    std::vector<Case> cases;
    addControls(cases);
    addGeometry(cases);
    addPolishing(cases);
    addViews(cases);
    addWindows(cases);
    return cases;
}

} // namespace StyleBenchmark
