/* Draftwick for every language that can call C: the whole object model by name.
 *
 *     dw_object* document;
 *     if (dw_create("Document", &document) != DW_OK) puts(dw_last_error()->text);
 *
 * Every function that can fail returns a dw_status; when it is not DW_OK nothing has changed, and dw_last_error() tells
 * the calling thread why. Texts are UTF-8 with a size. Names count with their capitals and are those of the reference
 * pages; dw_describe() lists them. A document and all that belongs to it is for one thread at a time.
 */
#ifndef DRAFTWICK_C_H
#define DRAFTWICK_C_H

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32)
#define DW_EXPORT __declspec(dllexport)
#else
#define DW_EXPORT __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Grows when something is added; what is there keeps its meaning. */
#define DW_C_VERSION 1

/* A reference to an object of the library. Two references can be to the same object: dw_same tells. */
typedef struct dw_object dw_object;

typedef enum dw_status {
    DW_OK = 0,
    DW_REFUSED = 1, /* by the library: dw_error.number is a dwErrCode or a dwRuntimeError */
    DW_SYSTEM = 2,  /* by the system: dw_error.number is its error number (errno, GetLastError) */
    DW_MEMORY = 3,  /* there is no memory */
    DW_INTERNAL = 4 /* a fault of the library */
} dw_status;

/* What a value is. */
typedef enum dw_kind {
    DW_NOTHING = 0,
    DW_BOOLEAN = 1,
    DW_NUMBER =
        2,       /* a whole number of 32 bits, a value of an enumeration, a colour (red in the lowest byte) */
    DW_REAL = 3, /* a real number, or a length in the document's ScaleMode; DW_NUMBER does, too */
    DW_TEXT = 4, /* UTF-8; a path in the system's bytes */
    DW_DATE = 5,
    DW_OBJECT = 6
} dw_kind;

typedef struct dw_text {
    const char* data; /* a received one ends in a zero, which size does not count */
    size_t size;
} dw_text;

typedef struct dw_date {
    int32_t year, month, day, hour, minute, second;
} dw_date;

/* A value that crosses the interface. One that is given stays the caller's. One that is received owns its text or its
 * reference, until dw_clear. */
typedef struct dw_value {
    int32_t kind; /* a dw_kind */
    union {
        int32_t boolean; /* 0 or 1 */
        int32_t number;
        double real;
        dw_text text;
        dw_date date;
        dw_object* object; /* NULL is nothing */
    } as;
} dw_value;

typedef struct dw_error {
    int32_t number;
    const char* text;   /* the message */
    const char* source; /* "Draftwick" for a dwErrCode, else empty */
    const char* advice; /* what was refused, with its limits, and what to do about it; can be empty */
    const char* file;   /* of DW_SYSTEM: the file's name, in the system's bytes; can be empty */
} dw_error;

/* Takes a piece of a file. 0 when it did; anything else ends the call with DW_SYSTEM and that number. */
typedef int32_t (*dw_sink)(const char* data, size_t size, void* user);

/* DW_C_VERSION of the library that runs. */
DW_EXPORT int32_t dw_c_version(void);

/* The object model as JSON, from which bindings can be made. It lives as long as the program.
 *
 *   {"enumerations": [{"name": "dwScaleMode", "values": {"dwInches": 1, ...}}, ...],
 *    "classes": [{"name": "Section", "class": "{...}", "interface": "{...}",
 *                 "create": true,               dw_create makes objects of it
 *                 "defaultMember": "Items",     what a host means by object(argument)
 *                 "items": "Font",              of a collection: the type of its items, 1 to Count
 *                 "properties": [{"name", "type", "get", "set", "optional": true, it can be nothing
 *                                 "default", "bits", "low", "high", "arguments"}, ...],
 *                 "methods": [{"name", "result", "optional",
 *                              "arguments": [{"name", "type", "default"}, ...]}, ...]}, ...]}
 *
 * A type is the name of an enumeration, of a class or of a kind: Boolean, Number, Real, Length, Color, Text, Path, Key (of
 * an item: a position from 1 or a name), Value (nothing or anything but an object), Object, Any,
 * Bytes (of a file). */
DW_EXPORT const char* dw_describe(void);

/* A new object of a class that hosts make objects of. */
DW_EXPORT dw_status dw_create(const char* class_name, dw_object** object);
/* Another reference to the same object; NULL when there is no memory. */
DW_EXPORT dw_object* dw_retain(const dw_object* object);
/* Lets a reference go. When the last one to a document goes, the document goes, and what belonged to it refuses with
 * error 91. NULL is let go as well. */
DW_EXPORT void dw_release(dw_object* object);
/* Whether two references are to the same object. */
DW_EXPORT int32_t dw_same(const dw_object* one, const dw_object* other);
/* The name of the object's class; NULL for NULL. It lives as long as the program. */
DW_EXPORT const char* dw_class_of(const dw_object* object);

/* Reads a property. */
DW_EXPORT dw_status dw_get(dw_object* object, const char* property, dw_value* value);
/* Sets a property. */
DW_EXPORT dw_status dw_set(dw_object* object, const char* property, const dw_value* value);
/* Calls a method. Arguments with a default can be left out at the end; `result` may be NULL. A property with an argument
 * is called, too: "AdjustValues" with its index, "SetAdjustValues" with its index and the value. */
DW_EXPORT dw_status dw_call(dw_object* object, const char* method, const dw_value* arguments, size_t count,
                            dw_value* result);
/* Finishes a document into a function in place of a file; `user` is handed on. When the function fails the document is not
 * finished, and a later call writes the whole. */
DW_EXPORT dw_status dw_finish_to(dw_object* document, dw_sink sink, void* user);
/* Lets go what a received value owns, and makes it nothing. */
DW_EXPORT void dw_clear(dw_value* value);

/* Why the last call of this thread that failed did so. Valid until the next one fails. */
DW_EXPORT const dw_error* dw_last_error(void);

#ifdef __cplusplus
}
#endif
#endif
