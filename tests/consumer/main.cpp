// Uses a class of each layer that an installed library offers on every build.
#include <KX7Utlt.h>

#include <cstdio>
#include <cstring>

int main()
{
    CMathematics kernel;
    CArray<TSPoint2DPlane, TSPoint2DPlane &> square;
    for (TSPoint2DPlane corner : {TSPoint2DPlane{0, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}})
        square.Add(corner);
    CString const text = CVARDString().Str(kernel.GetAreaSurface(&square)).GetCS();
    std::printf("%s\n", static_cast<char const *>(text));
    return std::strcmp(text, "4.000") == 0 ? 0 : 1;
}
