#pragma once

#include <afx.h>

// Whether the call raises that exception of the framework.
template <typename Exception, typename Call>
bool Raises(Call call) {
    try {
        call();
    } catch (Exception* exception) {
        exception->Delete();
        return true;
    }
    return false;
}

template <typename Call>
bool RaisesInvalidArg(Call call) {
    return Raises<CInvalidArgException>(call);
}
