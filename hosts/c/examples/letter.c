/* A letter in plain C, by the names of the object model.
 *
 * usage: letter OUTPUT.rtf */
#include <draftwick/draftwick_c.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void check(dw_status status) {
    if (status == DW_OK) return;
    fprintf(stderr, "%s\n", dw_last_error()->text);
    exit(1);
}

static dw_value text(const char* from) {
    dw_value value;
    value.kind = DW_TEXT;
    value.as.text.data = from;
    value.as.text.size = strlen(from);
    return value;
}

static dw_value number(int32_t from) {
    dw_value value;
    value.kind = DW_NUMBER;
    value.as.number = from;
    return value;
}

static void set(dw_object* object, const char* property, dw_value value) { check(dw_set(object, property, &value)); }

/* What a method gives, called with up to one argument; the caller lets it go. */
static dw_object* add(dw_object* object, const char* method, const char* argument) {
    dw_value given, result;
    if (argument != NULL) given = text(argument);
    check(dw_call(object, method, &given, argument != NULL, &result));
    return result.as.object;
}

static dw_object* part(dw_object* object, const char* property) {
    dw_value result;
    check(dw_get(object, property, &result));
    return result.as.object;
}

static void add_paragraph(dw_object* section, const char* content, int32_t size) {
    dw_object *paragraph = add(section, "AddParagraph", NULL), *look = part(paragraph, "FontFormat");
    set(look, "Size", number(size));
    dw_release(look);
    dw_release(add(paragraph, "AddTextItem", content));
    dw_release(paragraph);
}

int main(int argc, char** argv) {
    dw_object *document, *section;
    if (argc != 2) return 2;
    check(dw_create("Document", &document));
    set(document, "Filename", text(argv[1]));
    set(document, "Spelling", number(2)); /* dwSpellingStandard */
    section = add(document, "AddSection", NULL);
    add_paragraph(section, "Dear reader", 16);
    add_paragraph(section, "This letter was written in C \xE2\x80\x93 or in any language that can call it.", 11);
    check(dw_call(document, "Finish", NULL, 0, NULL));
    dw_release(section);
    dw_release(document);
    return 0;
}
