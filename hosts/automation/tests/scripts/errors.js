// What a JScript program hears of a refusal, and what it hands over.
//
// usage: cscript //nologo errors.js FOLDER
var wrong = 0, tried = 0;

function expect(actual, expected) {
    ++tried;
    if (actual === expected) return;
    ++wrong;
    WScript.Echo("expected: " + expected + "\nactual:   " + actual);
}

function refusal(action) {
    try {
        action();
    } catch (error) {
        return (error.number | 0) + " " + error.message;
    }
    return "accepted";
}

var document = new ActiveXObject("Draftwick.Document");
document.TempPath = WScript.Arguments(0);
document.Caption = "\u20ac \ud83d\ude00";
expect(document.Caption, "\u20ac \ud83d\ude00");
document.MarginLeft = 0.75;
expect(document.MarginLeft, 0.75);
expect(document.CurrentSection, null);
var names = "";
document.Fonts.Add("Arial");
document.Fonts.Add("Georgia");
for (var fonts = new Enumerator(document.Fonts); !fonts.atEnd(); fonts.moveNext()) names += fonts.item().Name + ",";
expect(names, "Arial,Georgia,");
var paragraph = document.AddSection().AddParagraph();
expect(refusal(function () { paragraph.Format.Align = 7; }).substr(0, 69),
       "-2147220890 Property ParagraphFormat.Align set to out of range value.");
expect(refusal(function () { paragraph.Format.IndentLeft = 1e9; }).substr(0, 20), "-2146828282 Overflow");
expect(refusal(function () { paragraph.Format.IndentLeft = 0 / 0; }).substr(0, 20), "-2146828282 Overflow");
expect(refusal(function () { paragraph.FontFormat.Size = undefined; }), "accepted");

WScript.Echo(tried + " tried, " + wrong + " wrong");
