#ifndef KX7_PLATFORM_BASE_EXTENSION_MODULE_H
#define KX7_PLATFORM_BASE_EXTENSION_MODULE_H

#include "platform/base/export.h"
#include "platform/base/object.h"
#include "platform/base/types.h"

/// What a library says of itself when it joins the program's search for resources. It has to live as long as
/// the library is loaded.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;    ///< The library.
    HMODULE hResource;  ///< Where its resources are: the library itself, or a language library in its place.
};

/// Fills the record at the start of a library. FALSE for a null module, with nothing changed.
KX7_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE & record, HMODULE module);

/// Takes the library out of the search and deletes what stood there for it.
KX7_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE & record);

/// A library's place in the search for resources, in front of those that were there. Made by `new` after
/// AfxInitExtensionModule; AfxTermExtensionModule deletes it.
class KX7_API CDynLinkLibrary : public CObject
{
  public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE & record);
    ~CDynLinkLibrary() override;
    CDynLinkLibrary(CDynLinkLibrary const &) = delete;
    CDynLinkLibrary & operator=(CDynLinkLibrary const &) = delete;

    AFX_EXTENSION_MODULE const & Record() const { return m_record; }
    CDynLinkLibrary * Next() const { return m_next; }

    /// The library that joined last; null if none did.
    static CDynLinkLibrary * First();

  private:
    AFX_EXTENSION_MODULE const & m_record;
    CDynLinkLibrary * m_next;
};

#endif
