// A recording is an enhanced metafile in memory: the system keeps each call with its objects, and Close reads
// the records back.
#include <utility>

#include "platform/device/recording.h"
#include "platform/device/win32/metafile_reader.h"

IMPLEMENT_DYNAMIC(CRecordingDC, CDC)

CRecordingDC::CRecordingDC()
{
    Attach(::CreateEnhMetaFile(nullptr, nullptr, nullptr, nullptr));
}

CRecordingDC::~CRecordingDC()
{
    Close();
}

std::vector<TSDrawnCall> CRecordingDC::Close()
{
    if (HENHMETAFILE const metafile = m_hDC ? ::CloseEnhMetaFile(Detach()) : nullptr) {
        detail::MetafileReader reader;
        reader.Read(metafile);
        ::DeleteEnhMetaFile(metafile);
        m_calls = std::move(reader.m_calls);
        m_leftSelected = reader.LeftSelected();
        m_leftUndeleted = reader.LeftUndeleted();
    }
    return std::exchange(m_calls, {});
}
