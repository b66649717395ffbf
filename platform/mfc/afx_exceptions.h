#pragma once

#include "afx_base.h"

// The framework throws pointers. Who catches one and does not pass it on calls its Delete. Memory that runs
// out is not among these: it shows as std::bad_alloc.
class CException {
public:
    // With `autoDelete` the object comes from new and Delete frees it.
    explicit CException(BOOL autoDelete) : m_bAutoDelete(autoDelete) {}
    CException(const CException&) = delete;
    CException& operator=(const CException&) = delete;
    virtual ~CException();

    void Delete();

private:
    BOOL m_bAutoDelete;
};

// An index or an argument out of its range.
class CInvalidArgException : public CException {
public:
    explicit CInvalidArgException(BOOL autoDelete) : CException(autoDelete) {}
    ~CInvalidArgException() override;
};

// A file operation without a result of its own to tell that it failed.
class CFileException : public CException {
public:
    enum : int { genericException = 1, diskFull = 13 };

    explicit CFileException(int cause) : CException(TRUE), m_cause(cause) {}
    ~CFileException() override;

    int m_cause;
};

// A window class, a menu or another resource of the system that was refused.
class CResourceException : public CException {
public:
    explicit CResourceException(BOOL autoDelete) : CException(autoDelete) {}
    ~CResourceException() override;
};

[[noreturn]] void AfxThrowInvalidArgException();
[[noreturn]] void AfxThrowFileException(int cause);
[[noreturn]] void AfxThrowResourceException();
