// SPDX-License-Identifier: MIT
// Makes allocations fail on purpose: what does not depend on which of them are counted.
#include "memory/allocation_faults.h"

#include "memory/fault_counter.h"

namespace tovangl {

CFaultCounter faultCounter;

CAllocationFaults::CAllocationFaults(FaultPattern pattern, long failing)
{
    faultCounter.restart(pattern, failing);
}

CAllocationFaults::~CAllocationFaults()
{
    pause();
}

void CAllocationFaults::resume()
{
    faultCounter.isCounting = true;
}

void CAllocationFaults::pause()
{
    faultCounter.isCounting = false;
}

void CAllocationFaults::end()
{
    faultCounter.failing = 0;
}

long CAllocationFaults::count()
{
    return faultCounter.counted;
}

bool CAllocationFaults::hasFailed()
{
    return faultCounter.hasFailed;
}

} // namespace tovangl
