#include "dxf/dxf_in_basic.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "dxf/detail_dxf_walk.h"
#include "dxf/layer_choice.h"
#include "foundation/vard_message.h"
#include "platform/base/file_choice.h"
#include "platform/base/wait_cursor.h"

using namespace std::string_view_literals;

IMPLEMENT_DYNAMIC(CDXFInBasic, CObject)

namespace {
constexpr int kArchiveBuffer = 4096;        // bytes
constexpr UINT kTextReadingFailed = 55017;  // with the line's number
constexpr int kCreated = 0;
constexpr int kNotCreated = 1;

bool IsPassedOver(std::string_view section)
{
    return section == "HEADER"sv || section == "CLASSES"sv || section == "OBJECTS"sv;
}

// What a section adds to one axis of a box: the first value sets it, later ones widen it.
class AxisRange
{
  public:
    AxisRange(double & lowest, double & highest) : m_lowest(lowest), m_highest(highest) {}

    void Take(double value)
    {
        m_lowest = m_hasValue ? std::min(m_lowest, value) : value;
        m_highest = m_hasValue ? std::max(m_highest, value) : value;
        m_hasValue = true;
    }

  private:
    double & m_lowest;
    double & m_highest;
    bool m_hasValue = false;
};

bool Counts(double value, int takeZeros)
{
    constexpr double kZero = 1e-6;
    return std::abs(value) > kZero || (takeZeros == 1 && !std::isnan(value));
}
}  // namespace

CDXFInBasic::CDXFInBasic() = default;

CDXFInBasic::~CDXFInBasic()
{
    Release();
}

void CDXFInBasic::Release()
{
    try {
        if (m_ownArchive)
            m_ownArchive->Close();
        else if (m_archive)
            m_archive->Flush();
    } catch (CException * exception) {
        exception->Delete();  // all that was wanted has been read
    }
    m_ownArchive.reset();
    m_archive = nullptr;
    m_file.reset();
}

void CDXFInBasic::StartAnew()
{
    Release();
    m_lineCounter = 0;
    m_layerNames.RemoveAll();
    m_layerFlags.RemoveAll();
    m_layerIndices.clear();
}

int CDXFInBasic::Create(CArchive * archive)
{
    StartAnew();
    m_archive = archive;
    return archive ? kCreated : kNotCreated;
}

int CDXFInBasic::Create(CFile * file)
{
    StartAnew();
    if (!file)
        return kNotCreated;
    m_ownArchive = std::make_unique<CArchive>(file, CArchive::load, kArchiveBuffer);
    m_archive = m_ownArchive.get();
    return kCreated;
}

int CDXFInBasic::Create(CString path)
{
    auto file = std::make_unique<CFile>();
    bool const opened = file->Open(path, CFile::modeRead | CFile::shareDenyWrite);
    int const result = Create(opened ? file.get() : nullptr);
    if (opened)
        m_file = std::move(file);
    return result;
}

int CDXFInBasic::Create(CString title, CString fileName, CString extension, CString filter)
{
    TSFileChoice const choice = {.title = title,
                                 .fileName = fileName,
                                 .extension = extension,
                                 .filter = filter,
                                 .flags = OFN_HIDEREADONLY | OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST};
    CString path;
    return ChooseFile(choice, path) ? Create(path) : kNotCreated;
}

bool CDXFInBasic::ReadLine()
{
    if (!m_archive || !m_archive->ReadString(m_data))
        return false;
    if (m_lineCounter < std::numeric_limits<std::int32_t>::max())
        ++m_lineCounter;
    return true;
}

int CDXFInBasic::ReadCode()
{
    if (!ReadLine())
        return DXF_STREAM_ENDED;
    if (m_data.IsEmpty())
        return DXF_EMPTY_CODE;
    detail::ScanInt(m_data.View(), m_code);
    return DXF_GO_ON;
}

int CDXFInBasic::ReadData()
{
    return ReadLine() ? DXF_GO_ON : DXF_STREAM_ENDED;
}

int CDXFInBasic::ReadDXFLine()
{
    int const status = ReadCode();
    return status == DXF_GO_ON ? ReadData() : status;
}

int CDXFInBasic::CheckEndOfEntity()
{
    return m_code == 0 ? 1 : 0;
}

int CDXFInBasic::FindLayer(CString const & name) const
{
    auto const found = m_layerIndices.find(name.View());
    return found == m_layerIndices.end() ? -1 : found->second;
}

int CDXFInBasic::AddLayerToArray(CString & name)
{
    if (FindLayer(name) >= 0)
        return 1;
    int const index = m_layerNames.Add(name);
    m_layerIndices.emplace(name.View(), index);
    return m_layerFlags.Add(1) == index ? 1 : 0;
}

int CDXFInBasic::SetLayerOn(CString & name, int on)
{
    int const index = FindLayer(name);
    if (index < 0)
        return 1;
    if (index >= m_layerFlags.GetSize())
        return 0;
    m_layerFlags.SetAt(index, on ? 1 : 0);
    return 1;
}

int CDXFInBasic::IsLayerOn(CString & name)
{
    int const index = m_useLayersFilter ? FindLayer(name) : -1;
    if (index < 0 || index >= m_layerFlags.GetSize())
        return 1;
    return m_layerFlags.GetAt(index) ? 1 : 0;
}

int CDXFInBasic::SetUseLayersFilter(int on)
{
    return std::exchange(m_useLayersFilter, on);
}

int CDXFInBasic::SetupLayersOn()
{
    if (!m_useLayersFilter)
        return 1;
    if (m_layerNames.IsEmpty())
        m_useLayersFilter = 0;
    else
        ChooseLayers(m_layerNames, m_layerFlags);
    return 1;
}

int CDXFInBasic::ReadDXF()
{
    int status = DXF_GO_ON;
    {
        CWaitCursor const waiting;
        status = WalkFile([this](std::string_view name) { return ReadNamedSection(name); });
    }
    if (status == DXF_GO_ON)
        return status;
    CString format;
    format.LoadString(kTextReadingFailed);
    CString text;
    text.Format(format, m_lineCounter);
    CVardMessage message;
    message.VardWarningBox(text, 0, 0);
    return status;
}

int CDXFInBasic::ReadNamedSection(std::string_view name)
{
    if (name == "TABLES"sv)
        return ReadTables();
    if (name == "BLOCKS"sv)
        return ReadBlocks();
    if (name == "ENTITIES"sv)
        return ReadEntities();
    return IsPassedOver(name) ? ReadUnknownSection() : DXF_GO_ON;
}

int CDXFInBasic::GetBoundingBox(double & xMin, double & xMax, double & yMin, double & yMax, double & zMin,
                                double & zMax, int takeZeros, int useBlocks, int useEntities)
{
    return WalkFile([&](std::string_view name) {
        bool const isWanted =
            (name == "BLOCKS"sv && useBlocks == 1) || (name == "ENTITIES"sv && useEntities == 1);
        if (isWanted) {
            int first = 1;
            return ReadSectionBoudingBox(xMin, xMax, yMin, yMax, zMin, zMax, takeZeros, first);
        }
        return name == "TABLES"sv || IsPassedOver(name) ? ReadUnknownSection() : DXF_GO_ON;
    });
}

int CDXFInBasic::ReadSectionBoudingBox(double & xMin, double & xMax, double & yMin, double & yMax,
                                       double & zMin, double & zMax, int takeZeros, int & first)
{
    std::array axes = {AxisRange{xMin, xMax}, AxisRange{yMin, yMax}, AxisRange{zMin, zMax}};
    first = 1;
    for (;;) {
        if (int const status = ReadDXFLine(); status != DXF_GO_ON)
            return status;
        if (m_code == 0 && m_data.View() == "ENDSEC"sv)
            return DXF_GO_ON;
        bool const isCoordinate = m_code == 10 || m_code == 20 || m_code == 30;
        double value = 0;
        if (!isCoordinate || !detail::ScanDouble(m_data.View(), value) || !Counts(value, takeZeros))
            continue;
        axes[static_cast<std::size_t>(m_code / 10 - 1)].Take(value);
        first = 0;
    }
}
