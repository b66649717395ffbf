#include "afx_thread_state.h"

AfxThreadData& AfxThreadState() {
    static thread_local AfxThreadData data;
    return data;
}
