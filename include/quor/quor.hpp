#ifndef QUOR_QUOR_HPP
#define QUOR_QUOR_HPP

/// @file
/// The whole library in one include, and `quor` as a short name of its versioned
/// namespace. Include the header of one class instead where compile time matters; it knows
/// the namespace as `QUOR_2_9` alone.
///
///     #include <quor/quor.hpp>
///     quor::strings::ustring8 text("hello");
///
/// @since 2.9

#include <quor/config/base_config_item.hpp>
#include <quor/config/character_classes.hpp>
#include <quor/config/child_map.hpp>
#include <quor/config/commandline_item.hpp>
#include <quor/config/config_dispatch.hpp>
#include <quor/config/config_manager.hpp>
#include <quor/config/config_token.hpp>
#include <quor/config/config_tree.hpp>
#include <quor/config/enviroment_item.hpp>
#include <quor/config/file_item.hpp>
#include <quor/config/module_config_dispatch.hpp>
#include <quor/config/std_config_dispatch.hpp>
#include <quor/config/user_item.hpp>
#include <quor/debug/assert_callback.hpp>
#include <quor/debug/invalid_parameter.hpp>
#include <quor/debug/output.hpp>
#include <quor/exceptions/exception.hpp>
#include <quor/exceptions/logic_error.hpp>
#include <quor/exceptions/runtime_error.hpp>
#include <quor/export.hpp>
#include <quor/functor/delegate.hpp>
#include <quor/functor/function_type_interface.hpp>
#include <quor/functor/member_function.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/generic/abilities/create_ability.hpp>
#include <quor/generic/abilities/id_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/generic/argument.hpp>
#include <quor/generic/clone_interface.hpp>
#include <quor/generic/convert/bin_str.hpp>
#include <quor/generic/convert/ltoa.hpp>
#include <quor/generic/convert/str_to_x.hpp>
#include <quor/generic/convert/units.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/i18n/catalog.hpp>
#include <quor/i18n/load_result.hpp>
#include <quor/i18n/message.hpp>
#include <quor/i18n/message_catalogs.hpp>
#include <quor/i18n/message_item.hpp>
#include <quor/i18n/value_formatters.hpp>
#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/memory/pointers/counted_pointer.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/memory/pointers/shared_pointer.hpp>
#include <quor/parser/xml_parser.hpp>
#include <quor/parser/xml_token_stream.hpp>
#include <quor/serialization/formatted_buffer.hpp>
#include <quor/serialization/labeled_serialize_buffer.hpp>
#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_buffer.hpp>
#include <quor/serialization/serialize_text_buf.hpp>
#include <quor/strings/case.hpp>
#include <quor/strings/code_page/code_page.hpp>
#include <quor/strings/gh2/streams.hpp>
#include <quor/strings/gh2/utf8_sequence.hpp>
#include <quor/strings/gh2/wide_text.hpp>
#include <quor/strings/native_wide.hpp>
#include <quor/strings/replace_all.hpp>
#include <quor/strings/split_string.hpp>
#include <quor/strings/transcode.hpp>
#include <quor/strings/unichar.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/system/date_time/basic_date.hpp>
#include <quor/system/date_time/basic_time.hpp>
#include <quor/system/date_time/calendar_rules.hpp>
#include <quor/system/date_time/date.hpp>
#include <quor/system/date_time/date_duration.hpp>
#include <quor/system/date_time/date_time.hpp>
#include <quor/system/date_time/milliseconds.hpp>
#include <quor/system/date_time/time.hpp>
#include <quor/system/date_time/time_duration.hpp>
#include <quor/system/date_time/timer.hpp>
#include <quor/system/directory.hpp>
#include <quor/system/file.hpp>
#include <quor/system/io.hpp>
#include <quor/traits/function_traits.hpp>
#include <quor/types/absolute_unit.hpp>
#include <quor/types/color.hpp>
#include <quor/types/device_unit.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/radix.hpp>
#include <quor/types/variant.hpp>
#include <quor/types/variant_type.hpp>
#include <quor/types/widths.hpp>
#include <quor/version.hpp>
#include <quor/xml_stream/xml_stream_parser.hpp>

/// Short name of the library's versioned namespace.
namespace quor = QUOR_2_9;

#endif
