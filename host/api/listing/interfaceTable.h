// The table that is made from the headers: plain rows, each table ended by one without a name.
#pragma once

namespace tvxhost::api {

struct FunctionRow
{
    const char* name = nullptr;
    unsigned int parameters = 0;
    bool returnsStatus = false;
    bool takesStatus = false;
    bool isInline = false;
};

struct ReasonRow
{
    const char* function = nullptr;
    const char* reason = nullptr;
};

extern const FunctionRow kFunctionRows[];
extern const ReasonRow kReasonRows[];

} // namespace tvxhost::api
