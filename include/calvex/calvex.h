/** \file
 * Calvex from C, and from every language that calls C: properties of water and steam, and the
 * equipment of steam systems, in any unit of measure.
 *
 *     calvex_engine* engine;
 *     double given[] = {10.0, 773.15}, h;  // MPa, K
 *     calvex_create(&engine);
 *     if (calvex_call_named(engine, "HPT", CALVEX_TERMINATED, given, 2, &h, 1) == CALVEX_OK) {
 *       printf("%.6f kJ/kg\n", h);
 *     }
 *     calvex_destroy(engine);
 *
 * Every function answers a code: 0 for success, a positive number when the engine has no answer, a
 * negative one for misuse. On failure nothing is written. No exception and no abort comes out. Why
 * a function with an engine fails `calvex_last_error` and `calvex_last_cause` tell.
 *
 * Texts are UTF-8. A text that goes in has its size beside it, CALVEX_TERMINATED where a zero byte
 * ends it. A text that comes out is asked for as
 *
 *     char* text, size_t size, size_t* needed
 *
 * where `needed`, unless it is NULL, receives the bytes of the whole text with its zero byte. With
 * a size of 0 that is all (`text` may be NULL); a text that does not fit is cut between two
 * characters, ended with a zero byte, and the answer is CALVEX_TOO_SMALL.
 *
 * An engine serves one thread at a time: that goes for each function that takes it, those that only
 * read its texts included. There may be any number of engines, at work at the same time: they share
 * nothing. Functions without an engine may be called at any time by any thread. Threads that
 * `calvex_direct` and `calvex_columns` start are theirs and gone when they return.
 *
 * Facts and requests are passed with the size of their structure (sizeof), to which a later version
 * may add fields at the end. A program goes on with a later library as it was built. With an
 * earlier library than it was built for, new fields of facts are 0, and a request is refused
 * (CALVEX_COUNT). The structures that stand in lists or in other structures stay as they are.
 */
#ifndef CALVEX_CALVEX_H
#define CALVEX_CALVEX_H

#include <stddef.h>
#include <stdint.h>

#ifdef _WIN32
#define CALVEX_API
#else
#define CALVEX_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** The codes that the functions answer. Positive: the number of the engine's message, whose text
 * `calvex_last_error` has: 8 and 9 settings of the solver, 7 of the trace, 101, 102 and 108 values
 * out of range, 103, 104, 105 and 107 no solution, 106 two phases; 100 any other text. */
enum calvex_code {
  CALVEX_OK = 0,
  CALVEX_NULL = -1,      /**< a pointer is NULL that must not be */
  CALVEX_UNKNOWN = -2,   /**< no member, group, unit, letter, row or node of that name or number */
  CALVEX_COUNT = -3,     /**< not as many values or bytes as there must be, or too many to exist */
  CALVEX_VALUE = -4,     /**< not a value of the kind that there must be */
  CALVEX_ENCODING = -5,  /**< not UTF-8 */
  CALVEX_TOO_SMALL = -6, /**< a text was cut: `needed` tells the size */
  CALVEX_MEMORY = -7,    /**< there is no memory left */
  CALVEX_INTERNAL = -8   /**< a fault of Calvex */
};

/** The size of a text that a zero byte ends. */
#define CALVEX_TERMINATED SIZE_MAX
/** No node of the trace. */
#define CALVEX_NONE SIZE_MAX

/* --- Engines ---------------------------------------------------------------------------------- */

typedef struct calvex_engine calvex_engine;

/** Makes an engine: model units (K, MPa, kg/m3, kJ/kg, kJ/(kg.K), kg/s, kW), the exact saturation
 * line (SatPolish 2), errors and warnings in the trace (TraceLevel 1). */
CALVEX_API int calvex_create(calvex_engine** engine);

/** NULL is no engine and no misuse. An engine is destroyed once, and not used afterwards: what else
 * happens is undefined. Set the pointer to NULL where it lives on. */
CALVEX_API int calvex_destroy(calvex_engine* engine);

/** Trace and settings as at the beginning. The units stay. */
CALVEX_API int calvex_reset(calvex_engine* engine);

/** Takes over another engine's units and the settings that results depend on. */
CALVEX_API int calvex_take_settings(calvex_engine* engine, const calvex_engine* other);

/** The text of the last failure of this engine, misuse included: that of the call just made, if it
 * failed. A success does not empty it; these two functions do not change it. */
CALVEX_API int calvex_last_error(const calvex_engine* engine, char* text, size_t size,
                                 size_t* needed);

/** What is behind the last failure where its text does not say so; mostly empty. Of an unknown unit
 * or group: those that there are. */
CALVEX_API int calvex_last_cause(const calvex_engine* engine, char* text, size_t size,
                                 size_t* needed);

/** "4.4.8" */
CALVEX_API int calvex_version(char* text, size_t size, size_t* needed);

/* --- Calls ------------------------------------------------------------------------------------ */

/** Calls a member: its numbers in, in the order of its parameters, and its numbers out. Of a
 * setting the one number is its value; `calvex_put` changes it. A whole number must be one.
 *
 * A result that the member leaves out is NaN, of whole numbers 0 (hWnd). */
CALVEX_API int calvex_call(calvex_engine* engine, int member, const double* inputs,
                           size_t input_count, double* outputs, size_t output_count);

/** The same by name, in any case. */
CALVEX_API int calvex_call_named(calvex_engine* engine, const char* name, size_t name_size,
                                 const double* inputs, size_t input_count, double* outputs,
                                 size_t output_count);

/** The same for a member that takes texts as well. `text_sizes` may be NULL: all end in a zero
 * byte. Names of unit groups and units may be plain words: "pressure", "°C", "psi", "t/h". */
CALVEX_API int calvex_call_texts(calvex_engine* engine, int member, const double* inputs,
                                 size_t input_count, const char* const* texts,
                                 const size_t* text_sizes, size_t text_count, double* outputs,
                                 size_t output_count);

/** Changes a setting. */
CALVEX_API int calvex_put(calvex_engine* engine, int member, double value);
CALVEX_API int calvex_put_text(calvex_engine* engine, int member, const char* text,
                               size_t text_size);

enum calvex_cell { CALVEX_CELL_NUMBER = 0, CALVEX_CELL_TEXT = 1 };

/** What the last call answered besides numbers: a table of texts and numbers, of one cell where the
 * answer is a text; no row where there was none. */
CALVEX_API int calvex_answer_size(calvex_engine* engine, size_t* rows, size_t* columns);
CALVEX_API int calvex_answer_kind(calvex_engine* engine, size_t row, size_t column, int* kind);
CALVEX_API int calvex_answer_number(calvex_engine* engine, size_t row, size_t column,
                                    double* number);
CALVEX_API int calvex_answer_text(calvex_engine* engine, size_t row, size_t column, char* text,
                                  size_t size, size_t* needed);

/* --- The table of members --------------------------------------------------------------------- */

/** How many members there are, and the number of each; numbers stay the same for ever. */
CALVEX_API int calvex_member_count(size_t* count);
CALVEX_API int calvex_member_at(size_t index, int* member);
/** The number of a member by its name, in any case. */
CALVEX_API int calvex_find_member(const char* name, size_t name_size, int* member);

enum calvex_kind {
  CALVEX_METHOD = 0,
  CALVEX_CONSTANT = 1,         /**< takes nothing and answers one number */
  CALVEX_SETTING = 2,          /**< can be read, and changed by `calvex_put` */
  CALVEX_READ_ONLY_SETTING = 3 /**< can be read */
};

typedef struct calvex_member {
  int number;
  int kind;               /**< enum calvex_kind */
  int heading;            /**< under which it is listed, from 0: see CALVEX_MEMBER_HEADING */
  size_t parameter_count; /**< of a constant or setting: the value */
  size_t input_count;     /**< numbers in, and so on */
  size_t text_count;
  size_t output_count;
  int answers_text; /**< 1: `calvex_answer_text` has the text */
  int answers_table;
  size_t column_input_count; /**< for `calvex_columns`; no outputs: not for columns */
  size_t column_output_count;
} calvex_member;

CALVEX_API int calvex_member_facts(int member, calvex_member* facts, size_t facts_size);

enum calvex_member_text_kind {
  CALVEX_MEMBER_NAME = 0,
  CALVEX_MEMBER_TITLE = 1,   /**< "enthalpy from pressure and temperature" */
  CALVEX_MEMBER_NOTES = 2,   /**< what else to know, in sentences; may be empty */
  CALVEX_MEMBER_HEADING = 3, /**< "properties" */
  CALVEX_MEMBER_WORDS = 4    /**< other words that people may look for; may be empty */
};
CALVEX_API int calvex_member_text(int member, int what, char* text, size_t size, size_t* needed);

enum calvex_type {
  CALVEX_REAL = 0,
  CALVEX_WHOLE = 1, /**< a number without decimals */
  CALVEX_TEXT = 2,
  CALVEX_TABLE = 3 /**< an answer with rows and columns */
};

typedef struct calvex_parameter {
  int type;      /**< enum calvex_type */
  int is_output; /**< 0: goes in, 1: comes out */
  int group;     /**< unit group, -1: none */
  double low;    /**< of an input: what is accepted, in model units; infinite: no bound */
  double high;
  int above_low; /**< 1: the lower bound itself is refused */
} calvex_parameter;

/** The parameters in the order of the calls: outputs stand before inputs. */
CALVEX_API int calvex_parameter_facts(int member, size_t index, calvex_parameter* facts,
                                      size_t facts_size);

enum calvex_parameter_text_kind {
  CALVEX_PARAMETER_NAME = 0,  /**< "pH" */
  CALVEX_PARAMETER_LABEL = 1, /**< "H": unique among a member's results */
  CALVEX_PARAMETER_WORDS = 2  /**< "enthalpy" */
};
CALVEX_API int calvex_parameter_text(int member, size_t index, int what, char* text, size_t size,
                                     size_t* needed);

/* --- Units ------------------------------------------------------------------------------------ */

/** Groups, the physical quantities, are numbered from 0. */
CALVEX_API int calvex_group_count(size_t* count);
/** By a plain word in any case: "pressure", "T", "flow". */
CALVEX_API int calvex_find_group(const char* word, size_t word_size, int* group);

enum calvex_group_text_kind {
  CALVEX_GROUP_NAME = 0,       /**< "Mass Specific Enthalpy" */
  CALVEX_GROUP_KEYWORD = 1,    /**< the first of those that select it: "H" */
  CALVEX_GROUP_MODEL_UNIT = 2, /**< "kJ/kg" */
  CALVEX_GROUP_NOTICE = 3      /**< what one should know of its units; mostly empty */
};
CALVEX_API int calvex_group_text(int group, int what, char* text, size_t size, size_t* needed);

/** The units of a group that can be chosen. */
CALVEX_API int calvex_unit_count(int group, size_t* count);
CALVEX_API int calvex_unit_name(int group, size_t index, char* text, size_t size, size_t* needed);

/** Chooses a unit in plain words: ("pressure", "bar"), ("T", "°C"). CALVEX_UNKNOWN: there is no
 * such group, or it has no such unit; the engine's texts tell the nearest, and all. */
CALVEX_API int calvex_set_unit(calvex_engine* engine, const char* group, size_t group_size,
                               const char* unit, size_t unit_size);
/** The unit of a group that the engine's values have now. */
CALVEX_API int calvex_unit(calvex_engine* engine, int group, char* text, size_t size,
                           size_t* needed);
/** What one who chooses that unit should know; mostly empty. */
CALVEX_API int calvex_unit_notice(int group, const char* unit, size_t unit_size, char* text,
                                  size_t size, size_t* needed);

/* --- The trace -------------------------------------------------------------------------------- */

enum calvex_node_kind {
  CALVEX_NODE_ROOT = 0,
  CALVEX_NODE_CALL = 1,
  CALVEX_NODE_ERROR = 2,
  CALVEX_NODE_WARNING = 3,
  CALVEX_NODE_NOTE = 4,
  CALVEX_NODE_EXTERNAL_ERROR = 5
};

typedef struct calvex_node {
  int kind;      /**< enum calvex_node_kind */
  int gravest;   /**< the gravest kind of message in it or below; a call or root without: itself */
  int code;      /**< of an error, a warning or a note: the number of its message, else 0 */
  size_t parent; /**< CALVEX_NONE: none; so are these */
  size_t first_child;
  size_t next_sibling;
  size_t column_count; /**< texts that a client added; those of the root are their titles */
} calvex_node;

/** Takes a picture of the trace: nodes 0 (the root) to count - 1, each child after its parent. They
 * stay as they are until the next picture. */
CALVEX_API int calvex_trace_take(calvex_engine* engine, size_t* count);
CALVEX_API int calvex_trace_node(calvex_engine* engine, size_t node, calvex_node* facts,
                                 size_t facts_size);
CALVEX_API int calvex_trace_text(calvex_engine* engine, size_t node, char* text, size_t size,
                                 size_t* needed);
CALVEX_API int calvex_trace_column(calvex_engine* engine, size_t node, size_t column, char* text,
                                   size_t size, size_t* needed);

/* --- Arrays ----------------------------------------------------------------------------------- */

/** `data[i * stride]` for point i: strides count elements. Of an input a stride of 0 is a constant;
 * of an output `data` may be NULL: not wanted. Inputs and outputs must not overlap. */
typedef struct calvex_column {
  const double* data;
  ptrdiff_t stride;
} calvex_column;
typedef struct calvex_target {
  double* data;
  ptrdiff_t stride;
} calvex_target;
typedef struct calvex_codes {
  short* data;
  ptrdiff_t stride;
} calvex_codes;

/** Told of a row that fails, by the thread that has the row; several may call at once unless
 * `threads` is 1. `text`, the reason and the cause behind it, holds during the call, which must not
 * use the engine. */
typedef void (*calvex_reason)(void* context, size_t row, const char* text, size_t text_size);

/** One property of every point by its letter (P T H S U R V Q A G M K C D Z W N E I J B L) with its
 * derivatives by the first input at constant second, and by the second at constant first. */
typedef struct calvex_result {
  char letter;
  calvex_target value;
  calvex_target by_first;
  calvex_target by_second;
} calvex_result;

enum calvex_phase {
  CALVEX_PHASE_NONE = -1, /**< a failed point */
  CALVEX_PHASE_LIQUID = 0,
  CALVEX_PHASE_VAPOUR = 1,
  CALVEX_PHASE_SUPERCRITICAL = 2,
  CALVEX_PHASE_TWO = 3
};

/** Many states by the direct road, from any two of P with T H S U R V Q, T with H S U R V Q, or H
 * with S, in either order. The exact saturation line decides, whatever the engine's settings; units
 * are the engine's. */
typedef struct calvex_request {
  char first_letter;
  char second_letter;
  size_t count; /**< of points */
  calvex_column first;
  calvex_column second;
  const calvex_result* results;
  size_t result_count;
  calvex_codes status;      /**< of each point: 0, or the number of the message */
  calvex_codes phase;       /**< enum calvex_phase */
  calvex_target line_slope; /**< dP/dT of the saturation line where there are two phases, else 0 */
  unsigned threads;         /**< 0: one for each core; the answers are the same */
} calvex_request;

/** Computes the states. A failed point's results are NaN and its neighbours untouched; the code is
 * that of the request, not of its points. Where `status` is asked for, the first point that fails
 * is the engine's last failure. It leaves no trace. */
CALVEX_API int calvex_direct(calvex_engine* engine, const calvex_request* request,
                             size_t request_size);

/** Why a point fails, in the engine's units; empty when it does not. The same becomes the engine's
 * last failure, so that `calvex_last_cause` tells what is behind it. */
CALVEX_API int calvex_direct_reason(calvex_engine* engine, char first_letter, char second_letter,
                                    double first, double second, const char* letters,
                                    size_t letter_count, char* text, size_t size, size_t* needed);

/** An output of a member over columns. */
typedef struct calvex_output {
  size_t index;
  calvex_target value;
} calvex_output;

typedef struct calvex_rows {
  int member;
  size_t count; /**< of rows */
  const calvex_column* inputs;
  size_t input_count;
  const calvex_output* outputs;
  size_t output_count;
  calvex_codes status;  /**< of each row: 0, or the number of the message; 100 for any other text */
  calvex_reason reason; /**< may be NULL */
  void* context;        /**< for `reason` */
  unsigned threads;     /**< 0: one for each core; the answers are the same */
} calvex_rows;

/** A member for each row of columns, with the engine's units and settings: every member that
 * computes numbers from numbers; an XL member's outputs are those that its tokens name. Answers are
 * the member's to 1e-10, mostly by the direct road. A failed row's outputs are NaN; the code is
 * that of the request. Where `status` is asked for, the first row that fails is the engine's last
 * failure. It leaves no trace. */
CALVEX_API int calvex_columns(calvex_engine* engine, const calvex_rows* rows, size_t rows_size);

/** Name and unit group (-1: none) of an input or output for `calvex_columns`: "P", "TOut". */
CALVEX_API int calvex_column_input(int member, size_t index, int* group, char* text, size_t size,
                                   size_t* needed);
CALVEX_API int calvex_column_output(int member, size_t index, int* group, char* text, size_t size,
                                    size_t* needed);

#ifdef __cplusplus
}
#endif

#endif
