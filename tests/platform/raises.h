#pragma once

#include <afx.h>

// Whether the call raises the framework's exception for a bad argument.
template <typename Call>
bool RaisesInvalidArg(Call call) {
    try {
        call();
    } catch (CInvalidArgException* exception) {
        exception->Delete();
        return true;
    }
    return false;
}
