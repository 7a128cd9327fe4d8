/* The border of the C interface: what crosses it, what is refused, what owns what. Words and files are compared by
 * tests/words through this interface; see hosts/tests. */
#include <draftwick/draftwick_c.h>

#include <stdio.h>
#include <string.h>

static int failures = 0;

#define EXPECT(condition)                                                  \
    do {                                                                   \
        if (!(condition)) {                                                \
            printf("%s:%d: %s\n", __FILE__, __LINE__, #condition);         \
            ++failures;                                                    \
        }                                                                  \
    } while (0)

static dw_value number(int32_t from) {
    dw_value value;
    value.kind = DW_NUMBER;
    value.as.number = from;
    return value;
}

static dw_value text(const char* data, size_t size) {
    dw_value value;
    value.kind = DW_TEXT;
    value.as.text.data = data;
    value.as.text.size = size;
    return value;
}

static dw_object* object_of(dw_object* from, const char* method) {
    dw_value result;
    EXPECT(dw_call(from, method, NULL, 0, &result) == DW_OK);
    return result.kind == DW_OBJECT ? result.as.object : NULL;
}

static dw_object* part_of(dw_object* from, const char* property) {
    dw_value result;
    EXPECT(dw_get(from, property, &result) == DW_OK);
    return result.kind == DW_OBJECT ? result.as.object : NULL;
}

/* The call failed, for this reason. */
static int refused(dw_status status, int32_t why) { return status == DW_REFUSED && dw_last_error()->number == why; }

static void test_values(dw_object* document) {
    dw_object *properties = part_of(document, "Properties"), *property, *again;
    dw_value key = text("Title", 5), value = number(9), result;
    EXPECT(dw_call(properties, "Items", &key, 1, &result) == DW_OK);
    property = result.as.object;
    EXPECT(strcmp(dw_class_of(property), "Property") == 0);

    EXPECT(dw_get(property, "Value", &result) == DW_OK && result.kind == DW_NOTHING);
    value = text("a\0b", 3);
    EXPECT(dw_set(property, "Value", &value) == DW_OK);
    EXPECT(dw_get(property, "Value", &result) == DW_OK && result.kind == DW_TEXT);
    EXPECT(result.as.text.size == 3 && memcmp(result.as.text.data, "a\0b", 4) == 0);
    dw_clear(&result);
    EXPECT(result.kind == DW_NOTHING);

    key = text("CreationTime", 12);
    EXPECT(dw_call(properties, "Items", &key, 1, &result) == DW_OK);
    value.kind = DW_DATE;
    value.as.date.year = 2026, value.as.date.month = 2, value.as.date.day = 28;
    value.as.date.hour = 1, value.as.date.minute = 2, value.as.date.second = 3;
    EXPECT(dw_set(result.as.object, "Value", &value) == DW_OK);
    dw_release(property);
    property = result.as.object;
    EXPECT(dw_get(property, "Value", &result) == DW_OK && result.kind == DW_DATE);
    EXPECT(result.as.date.day == 28 && result.as.date.second == 3);

    again = dw_retain(property);
    EXPECT(again != property && dw_same(again, property) && !dw_same(again, properties));
    dw_release(property);
    EXPECT(dw_get(again, "Value", &result) == DW_OK);
    dw_release(again);
    dw_release(properties);
}

static void test_refusals(dw_object* document) {
    dw_value value = number(9), many[9], result;
    dw_object* none = document;
    EXPECT(refused(dw_set(document, "ScaleMode", &value), -2147220890));
    EXPECT(strcmp(dw_last_error()->source, "Draftwick") == 0 && strstr(dw_last_error()->text, "ScaleMode") != NULL);
    EXPECT(refused(dw_get(document, "Nothing", &result), -2147220879) && result.kind == DW_NOTHING);
    EXPECT(refused(dw_set(document, "Emitted", &value), 5));
    EXPECT(refused(dw_set(document, "Caption", &value), 13));
    memset(many, 0, sizeof many);
    EXPECT(refused(dw_call(document, "ASCIIChar", many, 9, &result), 5));
    EXPECT(refused(dw_call(document, "ASCIIChar", NULL, 0, NULL), 5));
    EXPECT(refused(dw_create("Paragraph", &none), 429) && none == NULL);
    value.kind = 7;
    EXPECT(refused(dw_set(document, "Caption", &value), 5));
    value = text(NULL, 4);
    EXPECT(refused(dw_set(document, "Caption", &value), 5));

    /* NULL where something is needed. */
    EXPECT(refused(dw_get(NULL, "Caption", &result), 5) && refused(dw_get(document, NULL, &result), 5));
    EXPECT(refused(dw_get(document, "Caption", NULL), 5) && refused(dw_set(document, "Caption", NULL), 5));
    EXPECT(refused(dw_call(document, "ASCIIChar", NULL, 1, NULL), 5) && refused(dw_create(NULL, &none), 5));
    EXPECT(refused(dw_create("Document", NULL), 5));
    EXPECT(dw_retain(NULL) == NULL && dw_class_of(NULL) == NULL && dw_same(NULL, NULL) && !dw_same(NULL, document));
    dw_release(NULL);
    dw_clear(NULL);
}

static void test_files(dw_object* document) {
    dw_value name = text("/no such folder/a.rtf", 21);
    EXPECT(dw_set(document, "Filename", &name) == DW_OK);
    dw_release(object_of(document, "AddSection"));
    EXPECT(dw_call(document, "Finish", NULL, 0, NULL) == DW_SYSTEM);
    EXPECT(dw_last_error()->number == 2 && strstr(dw_last_error()->text, "no such folder") != NULL);
    EXPECT(strstr(dw_last_error()->file, "no such folder") != NULL && dw_last_error()->advice[0] == '\0');
}

struct received {
    char begin[16];
    size_t size;
    int32_t failure;
};

static int32_t receive(const char* data, size_t size, void* user) {
    struct received* received = user;
    if (received->size < sizeof received->begin)
        memcpy(received->begin + received->size, data,
               size < sizeof received->begin - received->size ? size : sizeof received->begin - received->size);
    received->size += size;
    return received->failure;
}

static void test_finishing_to_a_function(dw_object* document) {
    struct received received = {"", 0, 28};
    EXPECT(dw_finish_to(document, receive, &received) == DW_SYSTEM && dw_last_error()->number == 28);
    received.size = 0, received.failure = 0;
    EXPECT(dw_finish_to(document, receive, &received) == DW_OK);
    EXPECT(memcmp(received.begin, "{\\rtf1", 6) == 0 && received.size > 100);
    EXPECT(refused(dw_finish_to(document, receive, &received), -2147220882));
    EXPECT(refused(dw_finish_to(document, NULL, NULL), 5) && refused(dw_finish_to(NULL, receive, NULL), 5));
}

int main(void) {
    dw_object *document, *section;
    dw_value result;
    EXPECT(dw_c_version() == DW_C_VERSION && dw_describe()[0] == '{');
    EXPECT(dw_create("Document", &document) == DW_OK);
    test_values(document);
    test_refusals(document);
    test_files(document);
    test_finishing_to_a_function(document);
    section = part_of(document, "CurrentSection");
    dw_release(document);
    EXPECT(refused(dw_call(section, "AddParagraph", NULL, 0, &result), 91));
    dw_release(section);
    return failures != 0;
}
