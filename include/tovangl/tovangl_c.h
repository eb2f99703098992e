// SPDX-License-Identifier: MIT
/// @file
/// The whole interface for C, and for languages that call C.
///
/// Programs that were linked with one version 1.x of the library run with every later one.
///
/// Every text is UTF-8 and ends in a NUL, unless a length is passed with it. A function that can
/// fail returns a ::tovangl_status. Where it fails, its results are null or zero; where it refuses
/// an argument, nothing is changed. No null pointer, text or number makes a call crash, if arrays
/// are as long as their counts say. Nothing is printed, and no C++ exception leaves a call.
///
/// Only one thread at a time can use a chart; different threads can use different charts at once.
#ifndef TOVANGL_TOVANGL_C_H
#define TOVANGL_TOVANGL_C_H

#include <tovangl/Export.h>
#include <tovangl/Version.h>

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/// The colour of an item that has none of its own.
#define TOVANGL_NO_COLOR 0xffffffffU

/// A chart: its settings, its items, and what its last rendering gave.
typedef struct tovangl_chart tovangl_chart;

/// The kinds of chart; as bits in tovangl_setting.charts.
typedef enum tovangl_kind
{
    TOVANGL_PIE = 1,  ///< a pie with a caption beside each slice
    TOVANGL_BARS = 2, ///< standing bars, with the value scale at the left
    TOVANGL_HBARS = 4 ///< lying bars, one below the other, each with its value beside it
} tovangl_kind;

/// How a call ended. Later versions may add values.
typedef enum tovangl_status
{
    TOVANGL_OK = 0,              ///< as it should
    TOVANGL_NULL_ARGUMENT = 1,   ///< a pointer is null that must not be
    TOVANGL_BAD_ARGUMENT = 2,    ///< an argument is out of its range
    TOVANGL_NOT_UTF8 = 3,        ///< a caption or an address is not UTF-8
    TOVANGL_UNKNOWN_SETTING = 4, ///< a chart of this kind has no setting of that name
    TOVANGL_BAD_VALUE = 5,       ///< the setting does not accept the value
    TOVANGL_WRONG_KIND = 6,      ///< a chart of this kind has no such thing
    TOVANGL_NO_PICTURE = 7,      ///< the picture cannot be made; see tovangl_chart_problem()
    TOVANGL_NO_MEMORY = 8,       ///< memory ran out; the chart can be used again
    TOVANGL_NO_FONT = 9          ///< the file cannot be read, or is not a font that can be used
} tovangl_status;

/// What was wrong with a rendering. Later versions may add values.
typedef enum tovangl_problem
{
    TOVANGL_PROBLEM_NONE = 0,                ///< the chart was drawn, or nothing was rendered yet
    TOVANGL_PROBLEM_SIZE_OUT_OF_RANGE = 1,   ///< no picture: the size is out of range
    TOVANGL_PROBLEM_NO_MEMORY = 2,           ///< no picture: no memory, file or thread was left
    TOVANGL_PROBLEM_NO_PLATFORM_PLUGIN = 3,  ///< no picture: Qt's offscreen plugin cannot be loaded
    TOVANGL_PROBLEM_PROCESS_ENDING = 4,      ///< no picture: the process has begun to end
    TOVANGL_PROBLEM_TOO_SMALL_FOR_CHART = 5, ///< a picture without the chart: no room for it
    TOVANGL_PROBLEM_NO_GLYPHS = 6,           ///< the chart has no letters: the machine has no font
    TOVANGL_PROBLEM_FAMILY_REPLACED = 7      ///< another font is used than the family that was set
} tovangl_problem;

/// How a setting's value is written as text. Later versions may add values.
typedef enum tovangl_setting_type
{
    TOVANGL_SETTING_BOOLEAN = 0,       ///< true or false
    TOVANGL_SETTING_WHOLE = 1,         ///< a whole number, such as -5 or 1024
    TOVANGL_SETTING_REAL = 2,          ///< a decimal number, such as 2 or 1.5
    TOVANGL_SETTING_TEXT = 3,          ///< any text
    TOVANGL_SETTING_COLOR = 4,         ///< \#rrggbb, or default
    TOVANGL_SETTING_PICTURE_COLOR = 5, ///< \#rrggbb, default, or transparent
    TOVANGL_SETTING_PALETTE = 6,       ///< \#rrggbb,\#rrggbb, the name of a theme, or default
    TOVANGL_SETTING_LOCALE = 7, ///< a language and a country, such as de_AT; or C, or default
    TOVANGL_SETTING_AXIS_PROPERTIES = 8, ///< some of the choices with commas between them, or none
    TOVANGL_SETTING_POSITION = 9,        ///< two whole numbers with a comma between them
    TOVANGL_SETTING_CHOICE = 10,         ///< one of tovangl_setting.choices
    TOVANGL_SETTING_LINK = 11            ///< an address as in tovangl_chart_set_link(), or empty
} tovangl_setting_type;

/// One setting of a chart. Its texts live as long as the process; none is null.
typedef struct tovangl_setting
{
    const char* name;          ///< lower-case words with underscores between them: font_size
    const char* choices;       ///< of a choice or of axis properties, with commas between; or ""
    const char* default_value; ///< the value that every chart begins with
    const char* summary;       ///< what it does, in one English sentence
    int64_t minimum;           ///< the least value of a number; 0 for other types
    int64_t maximum;           ///< the greatest value of a number; 0 for other types
    int32_t type;              ///< a ::tovangl_setting_type: how its value is written
    int32_t charts;            ///< sum of the ::tovangl_kind of the charts that have it
} tovangl_setting;

/// A rectangle in pixels of the last rendered picture. (0, 0) is the picture's top-left pixel, x
/// grows to the right and y grows downward. All four fields are 0 where nothing was drawn.
typedef struct tovangl_rectangle
{
    int32_t x;      ///< left edge
    int32_t y;      ///< top edge
    int32_t width;  ///< columns covered
    int32_t height; ///< rows covered
} tovangl_rectangle;

/// Where a slice of a pie was drawn. All six fields are 0 where none was drawn.
///
/// The first four are the bounding box of the whole pie's ellipse, in pixels and fractions of them
/// as in ::tovangl_point. The slice covers the angles from start to start + span.
typedef struct tovangl_slice
{
    double x;      ///< left edge of the pie
    double y;      ///< top edge of the pie
    double width;  ///< width of the pie
    double height; ///< height of the pie
    double start;  ///< degrees counter-clockwise from three o'clock, at least 0 and below 360
    double span;   ///< degrees counter-clockwise, above 0 and up to 360
} tovangl_slice;

/// A place in the last rendered picture, in pixels and fractions of them. (0, 0) is the outer
/// corner of the picture's top-left pixel, x grows to the right and y grows downward.
typedef struct tovangl_point
{
    double x; ///< distance from the left edge
    double y; ///< distance from the top edge
} tovangl_point;

/// The version of the library that the process has loaded, such as "1.0.0". It may be later than
/// TOVANGL_VERSION_STRING, which the host was compiled with.
///
/// @return a text that lives as long as the process
TOVANGL_EXPORT const char* tovangl_version(void);

/// A status in one English sentence.
///
/// @param status  a ::tovangl_status
/// @return a text that lives as long as the process; empty for TOVANGL_OK and unknown numbers
TOVANGL_EXPORT const char* tovangl_status_text(int status);

/// Draws one tiny chart and forgets it, so that the process has loaded fonts and all else that its
/// first chart needs. No call needs this before it.
///
/// @return TOVANGL_NO_PICTURE where nothing can be drawn in this process
TOVANGL_EXPORT tovangl_status tovangl_warm_up(void);

/// Makes the families of a font file usable by all charts of this process, whatever is installed on
/// the machine. The setting "font" then takes their names.
///
/// TTF and OTF files can be added, and collections of them (TTC). A file is added once, however
/// often it is passed. Fonts stay until the process ends. Any thread can call this, while others
/// draw; it waits for the pictures that are being drawn.
///
/// @param path      of a regular file of at most 256 MB; not null
/// @param families  receives the names of the families, with a line feed between them and a NUL
///                  behind them; empty where they do not fit. May be null if capacity is 0
/// @param capacity  room for them in bytes
/// @param length    receives their length without the NUL, whether they fit or not; may be null
TOVANGL_EXPORT tovangl_status tovangl_add_font_file(const char* path, char* families,
                                                    size_t capacity, size_t* length);

/// The same for a font file in memory.
///
/// @param bytes  copied; not null
/// @param size   number of bytes
/// @param families, capacity, length  as for tovangl_add_font_file()
TOVANGL_EXPORT tovangl_status tovangl_add_font(const unsigned char* bytes, size_t size,
                                               char* families, size_t capacity, size_t* length);

/// The number of settings in the table.
TOVANGL_EXPORT size_t tovangl_setting_count(void);

/// Copies a row of the table of settings. The rows stand in the order in which they are to be set
/// where several are: a theme comes before the colours that it replaces.
///
/// @param index    0 to tovangl_setting_count() - 1; TOVANGL_BAD_ARGUMENT above that
/// @param setting  receives the row; not null
TOVANGL_EXPORT tovangl_status tovangl_setting_at(size_t index, tovangl_setting* setting);

/// Makes an empty chart, with the default of every setting.
///
/// @param kind   a ::tovangl_kind
/// @param chart  receives the chart, which is the caller's to destroy; not null
TOVANGL_EXPORT tovangl_status tovangl_chart_create(int kind, tovangl_chart** chart);

/// Frees a chart and everything that it owns. Null is harmless.
TOVANGL_EXPORT void tovangl_chart_destroy(tovangl_chart* chart);

/// What was wrong with the last call on this chart that returned a status, in English: the value is
/// not a whole number from 1 to 1000.
///
/// @return a text that lives until the next such call, or until the chart is destroyed; empty where
///         that call succeeded, and for a null chart
TOVANGL_EXPORT const char* tovangl_chart_error(const tovangl_chart* chart);

/// Sets a setting by its name.
///
/// @param chart  not null
/// @param name   such as "font_size"; not null
/// @param value  in the form of its tovangl_setting.type; not null
TOVANGL_EXPORT tovangl_status tovangl_chart_set(tovangl_chart* chart, const char* name,
                                                const char* value);

/// The same for a value of a given length. A NUL inside is a character.
///
/// @param chart, name  as for tovangl_chart_set()
/// @param value        may be null if length is 0
/// @param length       number of bytes of the value
TOVANGL_EXPORT tovangl_status tovangl_chart_set_sized(tovangl_chart* chart, const char* name,
                                                      const char* value, size_t length);

/// Adds one item.
///
/// @param chart    not null
/// @param value    the length of a bar, or the size of a slice: a pie draws values above 0 only
/// @param caption  not null
/// @param fill     0xrrggbb, or TOVANGL_NO_COLOR for the palette's next colour
/// @param outline  the same for a bar's outline, by default darker than the bar; a pie ignores it
TOVANGL_EXPORT tovangl_status tovangl_chart_add_item(tovangl_chart* chart, int64_t value,
                                                     const char* caption, uint32_t fill,
                                                     uint32_t outline);

/// Adds many items, or none of them where one is wrong; tovangl_chart_error() says which.
/// Everything is copied.
///
/// @param chart     not null
/// @param count     number of items; the arrays may all be null if it is 0
/// @param values    one for each item
/// @param captions  one for each item; none is null
/// @param fills     one for each item as in tovangl_chart_add_item(), or null: no colours
/// @param outlines  likewise
TOVANGL_EXPORT tovangl_status tovangl_chart_add_items(tovangl_chart* chart, size_t count,
                                                      const int64_t* values,
                                                      const char* const* captions,
                                                      const uint32_t* fills,
                                                      const uint32_t* outlines);

/// The same for captions that stand in one text, one behind the other, as columns of texts do.
///
/// @param chart    not null
/// @param text     all captions; a NUL inside is a character. May be null if size is 0
/// @param size     number of bytes of the text
/// @param offsets  count + 1 numbers: caption i reaches from offsets[i] up to, and without,
///                 offsets[i + 1]. None is smaller than the one before, or greater than size. Or
///                 null: a NUL stands between two captions, and none inside
/// @param count, values, fills, outlines  as in tovangl_chart_add_items()
TOVANGL_EXPORT tovangl_status tovangl_chart_add_columns(tovangl_chart* chart, size_t count,
                                                        const int64_t* values, const char* text,
                                                        size_t size, const size_t* offsets,
                                                        const uint32_t* fills,
                                                        const uint32_t* outlines);

/// Gives an item an address: its bar or slice and its caption in an SVG picture are a link to it.
///
/// TOVANGL_BAD_ARGUMENT where there is no such item, and for an address that is none of these: one
/// that begins with http:, https: or mailto:, or one that is relative to the page. It must hold no
/// white space or control characters.
///
/// @param chart    not null
/// @param item     position in the order of adding, from 0; with the setting "others", the number
///                 of items is the position of the others, as the setting "others_link" has it
/// @param address  empty for no link; not null
TOVANGL_EXPORT tovangl_status tovangl_chart_set_link(tovangl_chart* chart, size_t item,
                                                     const char* address);

/// Gives addresses to the first items, or to none of them where one is wrong; tovangl_chart_error()
/// says which. The addresses stand in one text, as the captions of tovangl_chart_add_columns() do.
///
/// @param chart    not null
/// @param count    number of addresses, at most that of items
/// @param text     all addresses, each as in tovangl_chart_set_link(). May be null if size is 0
/// @param size     number of bytes of the text
/// @param offsets  count + 1 numbers or null, as in tovangl_chart_add_columns()
TOVANGL_EXPORT tovangl_status tovangl_chart_set_links(tovangl_chart* chart, size_t count,
                                                      const char* text, size_t size,
                                                      const size_t* offsets);

/// Removes all items. Settings, and the bytes of the last picture, are kept.
TOVANGL_EXPORT tovangl_status tovangl_chart_clear(tovangl_chart* chart);

/// Renders the chart as a PNG image.
///
/// TOVANGL_NO_PICTURE where that cannot be made: a width or height below 1 or above 1,000,000, more
/// than 2^31 - 1 bytes at four bytes a pixel, no memory for the pixels, no offscreen platform
/// plugin of Qt on the machine, or a process that is ending. A picture that is too small for its
/// chart is made without the chart: tovangl_chart_problem() tells of it.
///
/// @param chart          not null
/// @param width, height  picture size in pixels
/// @param data           receives the first byte, which the chart owns until its next rendering,
///                       tovangl_chart_free_picture() or tovangl_chart_destroy(); not null
/// @param size           receives the number of bytes; not null
TOVANGL_EXPORT tovangl_status tovangl_chart_render(tovangl_chart* chart, int32_t width,
                                                   int32_t height, const unsigned char** data,
                                                   size_t* size);

/// Renders the chart for print: factor times as many pixels each way, with fonts, margins and lines
/// factor times as large, no gradient background, and slices in paler colours.
///
/// @param chart          not null
/// @param width, height  size in pixels before the factor is applied
/// @param factor         whole-number resolution; below 1 counts as 1
/// @param data, size     as for tovangl_chart_render()
TOVANGL_EXPORT tovangl_status tovangl_chart_render_for_print(tovangl_chart* chart, int32_t width,
                                                             int32_t height, int32_t factor,
                                                             const unsigned char** data,
                                                             size_t* size);

/// Renders the chart as an SVG picture: the one that tovangl_chart_render() makes of that size, in
/// shapes and texts instead of pixels.
///
/// @param chart          not null
/// @param width, height  picture size in pixels
/// @param data, size     as for tovangl_chart_render()
TOVANGL_EXPORT tovangl_status tovangl_chart_render_svg(tovangl_chart* chart, int32_t width,
                                                       int32_t height, const unsigned char** data,
                                                       size_t* size);

/// Renders the chart as a PDF file of one page for paper: the picture that
/// tovangl_chart_render_for_print() makes with the factor 4, in shapes and texts instead of pixels.
/// The same chart gives the same file.
///
/// @param chart          not null
/// @param width, height  page size in points, of which 72 are an inch: up to 14,400
/// @param data, size     as for tovangl_chart_render()
TOVANGL_EXPORT tovangl_status tovangl_chart_render_pdf(tovangl_chart* chart, int32_t width,
                                                       int32_t height, const unsigned char** data,
                                                       size_t* size);

/// Frees the bytes of the last picture. Calling it again is harmless.
TOVANGL_EXPORT tovangl_status tovangl_chart_free_picture(tovangl_chart* chart);

/// What was wrong with the last rendering; TOVANGL_PROBLEM_NONE for a null chart.
TOVANGL_EXPORT tovangl_problem tovangl_chart_problem(const tovangl_chart* chart);

/// The problem in one English sentence, such as: The picture has no room for the chart.
///
/// @return a text that lives as long as the process; empty where nothing was wrong
TOVANGL_EXPORT const char* tovangl_chart_problem_text(const tovangl_chart* chart);

/// Describes the last rendering in one English sentence, for a picture's alternative text.
///
/// It names the kind of chart, the number of items drawn, and the greatest and the least of these
/// with their captions. The sentence is one line.
///
/// @param chart  not null
/// @param text   receives the sentence, which the chart owns until the next call of this function
///               or tovangl_chart_destroy(); not null
TOVANGL_EXPORT tovangl_status tovangl_chart_describe(tovangl_chart* chart, const char** text);

/// Where the last rendering drew the title; all zero where it drew none.
///
/// @param chart      not null
/// @param rectangle  receives a copy; not null
TOVANGL_EXPORT tovangl_status tovangl_chart_title_rectangle(tovangl_chart* chart,
                                                            tovangl_rectangle* rectangle);

/// How many items the last rendering gathered in the one that the setting "others" names.
///
/// @return 0 where it drew no such item, and for a null chart
TOVANGL_EXPORT size_t tovangl_chart_others_count(const tovangl_chart* chart);

/// The value of the item that gathers them.
///
/// @return 0 where the last rendering drew no such item, and for a null chart
TOVANGL_EXPORT int64_t tovangl_chart_others_value(const tovangl_chart* chart);

/// Where the captions were drawn: one rectangle for each item, in the order of adding, and with the
/// setting "others" one more for the item that it draws. All zero for a hidden caption.
///
/// @param chart       not null
/// @param rectangles  receives the first of them, which the chart owns until the next call of this
///                    function or tovangl_chart_destroy(); not to be read where count is 0. Not
///                    null
/// @param count       receives their number; not null
TOVANGL_EXPORT tovangl_status tovangl_chart_caption_rectangles(tovangl_chart* chart,
                                                               const tovangl_rectangle** rectangles,
                                                               size_t* count);

/// The bar of each item in the last rendering, in the same order. A pie gives TOVANGL_WRONG_KIND.
///
/// A bar whose width was set can reach beyond the picture.
///
/// @param chart              not null
/// @param rectangles, count  as for tovangl_chart_caption_rectangles()
TOVANGL_EXPORT tovangl_status tovangl_chart_bar_rectangles(tovangl_chart* chart,
                                                           const tovangl_rectangle** rectangles,
                                                           size_t* count);

/// The slice of each item in the last rendering, in the same order. Bars give TOVANGL_WRONG_KIND.
///
/// @param chart          not null
/// @param slices, count  as for tovangl_chart_caption_rectangles()
TOVANGL_EXPORT tovangl_status tovangl_chart_slices(tovangl_chart* chart,
                                                   const tovangl_slice** slices, size_t* count);

/// The outline of a slice, for an image map. Its edges stay within half a pixel of the arc as it is
/// drawn. It starts at the pie's centre, unless the slice is the whole pie, and follows the arc
/// counter-clockwise. The last point does not repeat the first.
///
/// @param chart   any chart: it owns the points until the next call of this function or
///                tovangl_chart_destroy()
/// @param slice   a record of tovangl_chart_slices(), or one of the caller's: any angles are
///                allowed, and a negative span runs clockwise. Not null
/// @param points  receives the first corner; not to be read where count is 0. Not null
/// @param count   receives the number of corners; 0 for a slice that was not drawn. Not null
TOVANGL_EXPORT tovangl_status tovangl_chart_slice_polygon(tovangl_chart* chart,
                                                          const tovangl_slice* slice,
                                                          const tovangl_point** points,
                                                          size_t* count);

#ifdef __cplusplus
} // extern "C"
#endif

#endif
