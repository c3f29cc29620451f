#ifndef KX7UTLT_H
#define KX7UTLT_H

// The one header of a host program: every public class that the build offers.

#include "platform/base/archive.h"
#include "platform/base/array.h"
#include "platform/base/code_page.h"
#include "platform/base/collections.h"
#include "platform/base/combo_box.h"
#include "platform/base/exception.h"
#include "platform/base/extension_module.h"
#include "platform/base/file.h"
#include "platform/base/file_choice.h"
#include "platform/base/file_system.h"
#include "platform/base/gdi_types.h"
#include "platform/base/keyboard.h"
#include "platform/base/message_box.h"
#include "platform/base/number_parse.h"
#include "platform/base/object.h"
#include "platform/base/rect.h"
#include "platform/base/resource_module.h"
#include "platform/base/string.h"
#include "platform/base/system_information.h"
#include "platform/base/time.h"
#include "platform/base/wait_cursor.h"

#include "platform/device/dc.h"
#include "platform/device/font_choice.h"
#include "platform/device/gdi.h"
#include "platform/device/gdi_objects.h"
#include "platform/device/picture.h"
#include "platform/device/recording.h"

#include "foundation/basic_dll_storage.h"
#include "foundation/name.h"
#include "foundation/name_array.h"
#include "foundation/path.h"
#include "foundation/runtime_parameters.h"
#include "foundation/sound_player.h"
#include "foundation/stop_action.h"
#include "foundation/vard_list_with_named_object.h"
#include "foundation/vard_message.h"
#include "foundation/vard_named_array.h"
#include "foundation/vard_ob_list.h"
#include "foundation/vard_object.h"
#include "foundation/vard_section_list.h"
#include "foundation/vard_section_object.h"
#include "foundation/vard_sort_list.h"
#include "foundation/vard_string.h"
#include "foundation/vard_string_lang.h"

#include "geometry/face_3d.h"
#include "geometry/mat_point.h"
#include "geometry/mathematics.h"
#include "geometry/object_3d.h"
#include "geometry/records.h"
#include "geometry/vo_outline_box_2d.h"
#include "geometry/vo_polygon.h"

#include "units/base_units.h"
#include "units/units.h"

#include "drawing/dim_line.h"
#include "drawing/double_rect.h"
#include "drawing/draw.h"
#include "drawing/vard_font.h"

#include "views2d/rect2d_dim_line_2d.h"
#include "views2d/rect2d_object.h"

#include "dxf/dxf_block_basic.h"
#include "dxf/dxf_in_basic.h"
#include "dxf/dxf_out_basic.h"
#include "dxf/dxf_status.h"
#include "dxf/layer_choice.h"

#if defined(_WIN32)
#include "platform/window/controls.h"
#include "platform/window/dialog.h"
#include "platform/window/message_map.h"
#include "platform/window/wnd.h"

#include "dxf/layer_choice_dialog.h"
#include "services/color_text.h"
#include "services/vard_message_dlg.h"
#include "views2d/rect2d_ctrl.h"
#endif

#endif
