#include <utility>

#include "platform/device/cairo/context.h"
#include "platform/device/recording.h"

using namespace detail;

IMPLEMENT_DYNAMIC(CRecordingDC, CDC)

CRecordingDC::CRecordingDC()
{
    auto context = std::make_unique<DeviceContext>(kScreen, nullptr);
    context->m_recording = &m_calls;
    m_objectsBefore = CountLiveGdiObjects();
    Attach(EnterContext(std::move(context)));
}

CRecordingDC::~CRecordingDC()
{
    Close();
}

std::vector<TSDrawnCall> CRecordingDC::Close()
{
    if (DeviceContext const * const context = FindContext(m_hDC)) {
        m_leftSelected = !context->m_pen->m_stock + !context->m_brush->m_stock + !context->m_font->m_stock;
        DeleteDC();
        m_leftUndeleted = CountLiveGdiObjects() - m_objectsBefore;
    }
    return std::exchange(m_calls, {});
}
