#include "dxf/dxf_out_basic.h"

#include <algorithm>
#include <string>

#include "dxf/object_axes.h"
#include "foundation/vard_string.h"
#include "platform/base/file_choice.h"

using namespace std::string_view_literals;

IMPLEMENT_DYNAMIC(CDXFOutBasic, CObject)

namespace {
constexpr int kArchiveBuffer = 4096;  // bytes
}  // namespace

CDXFOutBasic::CDXFOutBasic(CMathematics * kernel) : m_kernel(kernel) {}

CDXFOutBasic::~CDXFOutBasic()
{
    try {
        Finish();
    } catch (CException * exception) {
        exception->Delete();
    }
}

void CDXFOutBasic::Finish()
{
    if (m_archive && !m_endWritten)
        WriteEOF();
    m_archive = nullptr;
    if (m_ownArchive)
        m_ownArchive->Close();
    m_ownArchive.reset();
    m_file.reset();
    m_sectionOpen = 0;
    m_endWritten = 0;
}

int CDXFOutBasic::Create(CArchive * archive)
{
    Finish();
    if (!archive)
        return DXF_NO_STREAM;
    if (!m_kernel)
        return DXF_NO_KERNEL;
    m_archive = archive;
    return DXF_WRITTEN;
}

int CDXFOutBasic::Create(CFile * file)
{
    Finish();
    if (!file)
        return DXF_NO_STREAM;
    if (!m_kernel)
        return DXF_NO_KERNEL;
    m_ownArchive = std::make_unique<CArchive>(file, CArchive::store, kArchiveBuffer);
    m_archive = m_ownArchive.get();
    return DXF_WRITTEN;
}

int CDXFOutBasic::OpenAndCreate(CString const & path, UINT flags)
{
    auto file = std::make_unique<CFile>();
    bool const opened = file->Open(path, flags);
    int const status = Create(opened ? file.get() : nullptr);
    if (status == DXF_WRITTEN)
        m_file = std::move(file);
    return status;
}

int CDXFOutBasic::Create(CString path)
{
    return OpenAndCreate(path, CFile::modeWrite);
}

int CDXFOutBasic::Create(CString title, CString fileName, CString extension, CString filter)
{
    TSFileChoice const choice = {.save = true,
                                 .title = title,
                                 .fileName = fileName,
                                 .extension = extension,
                                 .filter = filter,
                                 .flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT};
    CString path;
    return ChooseFile(choice, path) ? OpenAndCreate(path, CFile::modeCreate | CFile::modeWrite)
                                    : DXF_NO_STREAM;
}

void CDXFOutBasic::WriteLine(std::string_view text)
{
    m_archive->Write(text.data(), static_cast<UINT>(text.size()));
    m_archive->Write("\r\n", 2);
}

void CDXFOutBasic::WriteGroup(int code, std::string_view value)
{
    constexpr std::size_t kColumns = 3;
    std::string digits = std::to_string(code);
    digits.insert(0, kColumns - std::min(kColumns, digits.size()), ' ');
    WriteLine(digits);
    WriteLine(value);
}

void CDXFOutBasic::WriteGroup(int code, int value)
{
    WriteGroup(code, std::string_view(std::to_string(value)));
}

void CDXFOutBasic::WriteGroup(int code, double value)
{
    constexpr int kFreeWidth = -1;
    constexpr int kDefaultDecimals = -1;
    WriteGroup(code, CVARDString().Str(value, kFreeWidth, kDefaultDecimals, 0).GetCS().View());
}

int CDXFOutBasic::WriteEndSection()
{
    WriteGroup(0, "ENDSEC"sv);
    m_sectionOpen = 0;
    return DXF_WRITTEN;
}

int CDXFOutBasic::WriteEOF()
{
    WriteGroup(0, "EOF"sv);
    m_endWritten = 1;
    return DXF_WRITTEN;
}

int CDXFOutBasic::BeginSection(std::string_view name)
{
    if (m_sectionOpen)
        WriteEndSection();
    WriteGroup(0, "SECTION"sv);
    WriteGroup(2, name);
    m_sectionOpen = 1;
    return DXF_WRITTEN;
}

int CDXFOutBasic::WriteBeginSectionHEADERS()
{
    return BeginSection("HEADER");
}

int CDXFOutBasic::WriteBeginSectionCLASSES()
{
    return BeginSection("CLASSES");
}

int CDXFOutBasic::WriteBeginSectionTABLES()
{
    return BeginSection("TABLES");
}

int CDXFOutBasic::WriteBeginSectionBLOCKS()
{
    return BeginSection("BLOCKS");
}

int CDXFOutBasic::WriteBeginSectionENTITIES()
{
    return BeginSection("ENTITIES");
}

int CDXFOutBasic::WriteBeginSectionOBJECTS()
{
    return BeginSection("OBJECTS");
}

int CDXFOutBasic::UpravLayer(CString * layer)
{
    if (layer->IsEmpty()) {
        *layer = "0";
        return 1;
    }
    int const blanks = layer->Replace(' ', '-');
    int const points = layer->Replace('.', '_');
    return blanks + points > 0 ? 1 : 0;
}

int CDXFOutBasic::TranWCStoOCS(TUVect3D point, TUVect3D & result, double elevation, TUVect3D extrusion)
{
    detail::ObjectAxes const axes = detail::AxesOfExtrusion(extrusion);
    result = {{detail::Dot(point, axes.x), detail::Dot(point, axes.y), elevation}};
    return 1;
}
