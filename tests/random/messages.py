"""What the message of each kind of fault says: parts of which it has one, and no other kind has any."""

NO_WHOLE = "இங்கே முழு எண் வேண்டும்"
NEEDS = "செயலுக்கு"
NO_PLACE = "உரையின் ஓர் எழுத்தை மட்டும் மாற்ற முடியாது"
PARTS = {
    "division by zero": ["சுழியத்தால் (0) வகுக்க முடியாது!"],
    "remainder by zero": ["சுழியத்தால் (0) வகுக்க முடியாது!"],
    "overflow": ["64 பிட் முழு எண்ணில் அடங்காது"],
    "index": ["என்ற இடம் இல்லை; அதன் நீளம்"],
    "missing key": ["என்ற சாவி இல்லை"],
    "key kind": ["அகராதியின் சாவியாக முடியாது"],
    "no element of this": ["எடுக்க உறுப்புகள் இல்லை", NO_PLACE],
    "no list": [NO_PLACE, "பட்டியல் வேண்டும்", "'சேர்'"],
    "no loop over this": ["'ஒவ்வொன்றாக' போக முடியாது"],
    "no number": ["எண் வேண்டும்"],
    "no text": ["உரை வேண்டும்"],
    "bad number": ["எண்"],
    "no truth value": ["இங்கே மெய் அல்லது பொய் வேண்டும்"],
    "no whole number": [NO_WHOLE, "முழு எண்ணாக இருக்க வேண்டும்"],
    "number kind": [NO_WHOLE, "முழு எண்ணாக இருக்க வேண்டும்", NO_PLACE],
    "nothing to remove": ["நீக்க முடியாது"],
    "nothing to remove from": ["பட்டியல் அல்லது அகராதி வேண்டும்"],
    "operand kind": ["ஆகிய இரண்டுக்கும் இடையே"],
    "order": ["எது பெரியது என்று ஒப்பிட முடியாது"],
    "step of zero": ["வரம்பின் படி 0"],
    "unset": ["இன்னும் மதிப்பு வைக்கவில்லை"],
}


def fits(kind, message):
    return any(part in message for part in PARTS.get(kind, [""]))
