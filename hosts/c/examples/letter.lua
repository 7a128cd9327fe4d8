-- The letter of letter.c from Lua: LuaJIT reads the header and calls the library, without a line of C.
--
-- usage: luajit letter.lua HEADER LIBRARY OUTPUT.rtf
local ffi = require("ffi")

local header = io.open(arg[1]):read("*a")
header = header:gsub("\n%s*#[^\n]*", ""):gsub('extern "C" {', ""):gsub("}%s*$", ""):gsub("DW_EXPORT ", "")
ffi.cdef(header)
local dw = ffi.load(arg[2])

local Value = {}

local function check(status)
    if status ~= dw.DW_OK then error(ffi.string(dw.dw_last_error().text), 0) end
end

-- A value of Lua as one of the interface. A text must live as long as the value.
local function give(from)
    local value = ffi.new("dw_value")
    if type(from) == "number" then
        value.kind, value.as.real = dw.DW_REAL, from
    elseif type(from) == "boolean" then
        value.kind, value.as.boolean = dw.DW_BOOLEAN, from and 1 or 0
    elseif type(from) == "string" then
        value.kind, value.as.text.data, value.as.text.size = dw.DW_TEXT, from, #from
    end
    return value
end

-- Objects are let go by Lua's garbage collector; members are called and indexed by their names.
local function take(value)
    if value.kind == dw.DW_OBJECT then
        return setmetatable({handle = ffi.gc(value.as.object, dw.dw_release)}, Value)
    end
    local plain
    if value.kind == dw.DW_TEXT then plain = ffi.string(value.as.text.data, value.as.text.size) end
    if value.kind == dw.DW_NUMBER then plain = value.as.number end
    if value.kind == dw.DW_REAL then plain = value.as.real end
    if value.kind == dw.DW_BOOLEAN then plain = value.as.boolean == 1 end
    dw.dw_clear(value)
    return plain
end

function Value.__index(object, name)
    local value = ffi.new("dw_value")
    if dw.dw_get(object.handle, name, value) == dw.DW_OK then return take(value) end
    return function(self, ...) -- a method
        local given = ffi.new("dw_value[?]", select("#", ...) + 1)
        for i = 1, select("#", ...) do given[i - 1] = give((select(i, ...))) end
        check(dw.dw_call(self.handle, name, given, select("#", ...), value))
        return take(value)
    end
end

function Value.__newindex(object, name, value) check(dw.dw_set(object.handle, name, give(value))) end

local function create(name)
    local made = ffi.new("dw_object*[1]")
    check(dw.dw_create(name, made))
    return setmetatable({handle = ffi.gc(made[0], dw.dw_release)}, Value)
end

local function addParagraph(section, text, size)
    local paragraph = section:AddParagraph()
    paragraph.FontFormat.Size = size
    paragraph:AddTextItem(text)
end

local document = create("Document")
document.Filename = arg[3]
document.Spelling = 2 -- dwSpellingStandard
local section = document:AddSection()
addParagraph(section, "Dear reader", 16)
addParagraph(section, "This letter was written in C – or in any language that can call it.", 11)
document:Finish()
