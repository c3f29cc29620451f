#ifndef KX7_FOUNDATION_BASIC_DLL_STORAGE_H
#define KX7_FOUNDATION_BASIC_DLL_STORAGE_H

#include "platform/base/object.h"

class CLALanguageConnects;

/// What a language library hands over to the program that loads it. The library derives its own class from
/// this one, fills the fields in Create and gives the object out through its export GetDllStorage.
class KX7_API CBasicDLLStorage : public CObject
{
    DECLARE_DYNAMIC(CBasicDLLStorage)

  public:
    CBasicDLLStorage() = default;
    ~CBasicDLLStorage() override;

    /// Fills the object for a program's language connection. A language library overrides it; here it does
    /// nothing and returns -1.
    virtual int Create(CLALanguageConnects * connects);

  protected:
    // What the fields hold is up to the language library.
    int m_state = -1;
    void * m_first = nullptr;
    void * m_second = nullptr;
    void * m_third = nullptr;
};

#endif
