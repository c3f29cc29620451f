// The operations of CVARDString on file names.
#include <algorithm>
#include <cstdio>

#include "foundation/vard_string.h"
#include "platform/base/file_system.h"

namespace {
constexpr int kHeadLength = 3;  // of a shortened path: the drive, its colon and a backslash

CString WithBackslash(CString directory)
{
    return directory.View().ends_with('\\') ? directory : directory + '\\';
}

// The first digit of a file's base and all behind it are taken for the counter of an earlier copy.
CString WithoutCounter(CString const & base)
{
    int const digit = base.FindOneOf("0123456789");
    return digit < 0 ? base : base.Left(digit);
}
}  // namespace

CString CVARDString::CutDirectory(int maxLength, int inPlace)
{
    CString result = m_text;
    if (m_text.GetLength() >= maxLength) {
        CString const head = m_text.Left(kHeadLength);
        CString rest = m_text.Mid(kHeadLength);
        long long const room = static_cast<long long>(maxLength) - kHeadLength;
        while (rest.GetLength() > room && rest.Find('\\') >= 0)
            rest = rest.Mid(rest.Find('\\') + 1);
        result = rest.GetLength() <= room ? head + "... \\" + rest
                                          : head + "..." + rest.Right(static_cast<int>(std::max(room, 0LL)));
    }
    return Finish(result, inPlace != 0 ? 1 : 0).m_text;
}

CString CVARDString::GetCloneFileName(CString directory, CString name) const
{
    CString const folder = WithBackslash(directory);
    int const point = name.ReverseFind('.');
    CString const extension = point < 0 ? CString() : name.Mid(point);
    CString const base = WithoutCounter(point < 0 ? name : name.Left(point));
    CString attempt = base + extension;
    for (int counter = 1; FileExists(folder + attempt); ++counter)
        attempt.Format("%s%03d%s", static_cast<char const *>(base), counter,
                       static_cast<char const *>(extension));
    return attempt;
}
