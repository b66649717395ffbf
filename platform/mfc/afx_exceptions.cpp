#include "afx_exceptions.h"

CException::~CException() = default;
CInvalidArgException::~CInvalidArgException() = default;
CFileException::~CFileException() = default;
CResourceException::~CResourceException() = default;

void CException::Delete() {
    if (m_bAutoDelete) delete this;
}

void AfxThrowInvalidArgException() {
    // One object for all: it carries nothing, and throwing it needs no memory.
    static CInvalidArgException invalidArgument(FALSE);
    throw &invalidArgument;
}

void AfxThrowFileException(int cause) {
    throw new CFileException(cause);
}

void AfxThrowResourceException() {
    static CResourceException refused(FALSE);
    throw &refused;
}
