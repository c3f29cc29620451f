#include "geometry/mathematics.h"

IMPLEMENT_DYNAMIC(CMathematics, CObject)

CMathematics::CMathematics() = default;

CMathematics::~CMathematics() = default;
