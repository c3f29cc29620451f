#include "platform/base/extension_module.h"

namespace {
CDynLinkLibrary * g_firstLibrary = nullptr;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE & record) : m_record(record), m_next(g_firstLibrary)
{
    g_firstLibrary = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    CDynLinkLibrary ** link = &g_firstLibrary;
    while (*link && *link != this)
        link = &(*link)->m_next;
    if (*link)
        *link = m_next;
}

CDynLinkLibrary * CDynLinkLibrary::First()
{
    return g_firstLibrary;
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE & record, HMODULE module)
{
    if (!module)
        return FALSE;
    record = {TRUE, module, module};
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE & record)
{
    for (CDynLinkLibrary * library = g_firstLibrary; library;) {
        CDynLinkLibrary * const next = library->Next();
        if (&library->Record() == &record)
            delete library;
        library = next;
    }
    record = {};
}
