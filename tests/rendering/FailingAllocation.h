// Lets the allocations of the program that it is linked into fail.
#pragma once

namespace tarvox::crowd::test {

/// While one lives, operator new finds no memory.
class FailingAllocation
{
public:
    FailingAllocation();
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

} // namespace tarvox::crowd::test
