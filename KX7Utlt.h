#ifndef KX7UTLT_H
#define KX7UTLT_H

// The one header of a host program: every public class that the build offers.

#include "platform/base/array.h"
#include "platform/base/code_page.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

#include "geometry/mathematics.h"
#include "geometry/records.h"

#endif
