#!/usr/bin/env python3
"""Writes the dialog scenarios of this folder: one kitchen world, one file per user journey.
Run from anywhere; the transcripts (NAME.expected.json) come from the runner and are checked
by reading before they are committed."""
import copy
import json
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "..", "..", "samples"))
sys.dont_write_bytecode = True  # no cache beside the samples
import textos  # noqa: E402  (the sample catalogues' texts, shared with make_samples.py)

TEXTS = {
    **textos.DIALOGO,
    "ENC1": "Profundidad", "ENC2": "Altura", "ENC3": "Anchura",
}

KINDS = ["MO_EA", "MO_EAl", "MO_EF", "MO_EAAl", "MO_EAF", "MO_EAlF", "MO_EAAlF"]


def catalogue():
    table2 = [{"code": k, "cols": {"9": v}} for k, v in TEXTS.items()]
    table2 += [{"code": k, "cols": {"2": "MO: M01 M02"}} for k in KINDS]
    return {
        "language": "ESP",
        "tables": {
            "2": table2,
            "3": [{"name": "B60", "cols": {"3": "600", "4": "560", "5": "720"}}],
            "8": [{"code": "M01", "cols": {"1": "M01", "3": "TIBER", "4": "PUERTA"}},
                  {"code": "M02", "cols": {"1": "M02", "3": "MONZA", "4": "PUERTA"}}],
            "19": [{"name": "PILAR1", "data": "imagen del pilar"}],
        },
    }


def comp(oid, code, text, chosen="0", listed="1", **more):
    # 15, 16, 17: no limit checks (the flags are read as booleans, so every component has them)
    info = {"4": code, "5": text, "15": "0", "16": "0", "17": "0", "58": listed, "59": chosen}
    info.update(more.pop("info", {}))
    o = {"id": oid, "info": info}
    o.update(more)
    return o


def cabinet(oid=100, catalogue_number="40", width="600", height="720", depth="560",
            cut_outs="", file_name="cocina"):
    markers = [comp(oid + 1 + k, p + "B60", "marca", listed="0")
               for k, p in enumerate(["EA_", "EAl_", "EF_", "EAA_", "EAF_", "EAlF_", "EAAF_"])]
    return {
        "id": oid,
        "info": {"0": file_name, "2": catalogue_number, "7": "B60", "8": "B60-TIBER",
                 "12": width, "13": depth, "14": height, "15": "1", "16": "1", "17": "1",
                 "53": cut_outs, "64": "TIBER"},
        "script": "LMIN=300,LMAX=1200,HMIN=500,HMAX=900,PMIN=300,PMAX=700)",
        "children": markers + [
            comp(oid + 10, "CS_IZQ", "Costado izquierdo", "1"),
            comp(oid + 11, "CS_DER", "Costado derecho", "0"),
            comp(oid + 20, "FR_PUERTA", "Puerta", "1", children=[
                comp(oid + 21, "FR_TIRADOR", "Tirador", "1"),
                comp(oid + 22, "FR_BISAGRA", "Bisagras", "0")]),
            comp(oid + 30, "EQ_BALDA", "Balda", "0"),
            comp(oid + 31, "EQ_CAJON", "Cajón interior", "1",
                 info={"10": "con freno", "11": "2"}),
            comp(oid + 40, "O_ZOCALO", "Zócalo", "1"),
            comp(oid + 41, "O_PATA", "Patas altas", "0", info={"15": "1"},
                 script="LMIN=700,LMAX=900)"),
            comp(oid + 42, "CS_OCULTO", "Costado oculto", "0", listed="0"),
            comp(oid + 50, "PIL_CJ1", "Encastre pilar izquierdo", "0",
                 script="/// PILAR1 ENC1(MIN=50,MAX=@L) ENC2(MIN=0,MAX=@H)"),
            comp(oid + 51, "PIL_CJ2", "Encastre pilar derecho", "0",
                 script="ENC3(MIN=10,MAX=@P)"),
            comp(oid + 60, "COR_DG", "Corte diagonal", "0", info={"49": "Corte en diagonal"}),
        ],
    }


def world(scene, calls, catalogues=None):
    return {
        "application": {
            "language": "ESP",
            "moduleDir": "C:\\Quorbel",
            "files": {"C:\\Quorbel\\SPACE.INI": "[Local]\r\nCatalogsDir=C:\\Cat\r\n",
                      "C:\\Quorbel\\Space.ini": "[Local]\r\nCatalogsDir=C:\\Cat\r\n"},
        },
        "catalogs": catalogues or {"C:\\Cat\\cocina.cat": catalogue()},
        "scene": scene,
        "calls": calls,
    }


def call(ui, obj=100, cls="Plugin", method="OnObjectComponentsBefore"):
    return {"class": cls, "method": method, "object": obj, "ui": ui}


def click(control, index=None):
    a = {"do": "click", "control": control}
    if index is not None:
        a["index"] = index
    return a


def typed(control, index, text):
    return {"do": "type", "control": control, "index": index, "text": text}


def lclick(lst, entry):
    return {"do": "listClick", "list": lst, "entry": entry}


SNAP = {"do": "snapshot"}
ACCEPT = click("btnAcptComp")
EXIT = click("btnCnlComps")

SCENARIOS = {
    # Loading: lists, recess rows, special types, captions; then "Salir sin guardar".
    "open_and_exit": [call([SNAP, EXIT])],
    # Width special and changed within the script limits: measures and the ANCHO marker.
    "width_within_limits": [call([click("PictureEsp", 0), typed("TextMedEsp", 0, "65x0"),
                                  SNAP, ACCEPT])],
    # Width and height out of limits: one message listing both; the dialog stays open.
    "measures_out_of_limits": [call([click("EtiqCuadEsp", 3), typed("TextMedEsp", 0, "1300"),
                                     typed("TextMedEsp", 1, "\b\b\b400"),
                                     ACCEPT, typed("TextMedEsp", 0, "800"), ACCEPT,
                                     typed("TextMedEsp", 1, "800"), ACCEPT])],
    # A special measure left unchanged: message; after a list toggle: reduced writes.
    "unchanged_special": [call([click("PictureEsp", 0), ACCEPT, lclick(1, 2), ACCEPT])],
    # Recess values above their maxima: message, nothing stored; corrected: stored, annotated.
    "recess_values": [call([lclick(4, 0), SNAP, typed("TxtValoresEnc", 0, "900"), ACCEPT,
                            typed("TxtValoresEnc", 0, "550"), typed("TxtValoresEnc", 1, "a+10"),
                            ACCEPT])],
    # The diagonal by lengths, with its failures, then accepted.
    "diagonal_lengths": [call([click("ImageDiagonal", 0), typed("TextValores", 0, "700"),
                               typed("TextValores", 1, "300"), typed("TextValores", 2, "200"),
                               ACCEPT, typed("TextValores", 0, "300"),
                               typed("TextValores", 2, "700"), ACCEPT,
                               typed("TextValores", 2, "144.5"), ACCEPT])],
    # Descriptions past 64 K characters with a NUL inside, read from the host and written back
    # with the recess and diagonal blocks: nothing cut at a 16-bit length or at the NUL.
    "long_texts": [call([lclick(4, 0), typed("TxtValoresEnc", 0, "550"), click("ImageDiagonal", 1),
                         typed("TextValores", 3, "45"), ACCEPT])],
    # The diagonal by angle: empty, 181, then 180.
    "diagonal_angle": [call([click("ImageDiagonal", 1), ACCEPT, typed("TextValores", 3, "181"),
                             ACCEPT, typed("TextValores", 3, "180"), ACCEPT])],
    # "Cancelar valores" drops the diagonal at once; "Salir sin guardar" writes nothing else.
    "cancel_values_and_exit": [call([click("ImageDiagonal", 0), typed("TextValores", 0, "100"),
                                     click("BotonCnlValores"), SNAP, EXIT])],
    # The window's close box and the end of the actions close like "Salir sin guardar".
    "close_box_and_end": [call([lclick(0, 1), {"do": "close"}]), call([lclick(0, 1)])],
    # A wider cabinet opens with ANCHO selected; "Medidas por defecto" restores 600.
    "default_measures": [call([SNAP, {"do": "mouseDown", "control": "EtiqCnlMed"},
                               {"do": "mouseUp", "control": "EtiqCnlMed"},
                               click("EtiqCnlMed"), SNAP, ACCEPT])],
    # Accepting recesses and a diagonal, then reopening: stored values come back.
    "reopen_restores": [
        call([lclick(4, 0), typed("TxtValoresEnc", 0, "120"), typed("TxtValoresEnc", 1, "80"),
              click("ImageDiagonal", 1), typed("TextValores", 3, "45"), ACCEPT]),
        call([SNAP, EXIT])],
    # An action on a control the dialog does not have: the error trap reports it.
    "error_trap": [call([lclick(0, 1), click("NoSuchControl"), SNAP])],
    # Wizard: the dialog for catalogues 31 to 33 only.
    "wizard_catalogues": [call([SNAP], obj=300, cls="Wizard"),
                          call([], obj=500, cls="Wizard"),
                          call([], obj=600, cls="Wizard"),
                          call([], obj=700, cls="Wizard"),
                          call([], obj=100, cls="Wizard", method="ObjectWizard"),
                          call([EXIT], obj=300, cls="Wizard", method="ObjectWizard")],
    # The catalogue file is found nowhere: one message, no dialog.
    "missing_catalogue": [call([], obj=400)],
    # Captions through the dictionary when the languages differ.
    "captions_translated": [call([SNAP, EXIT])],
    # Languages that differ only in case: captions as the catalogue has them.
    "languages_same_ignoring_case": [call([click("PictureEsp", 0), typed("TextMedEsp", 0, "1300"),
                                           ACCEPT, SNAP, EXIT])],
    # Texts that are not numbers: a pasted measure, a fractional recess value, a diagonal
    # value beyond 16 bits; then "Cancelar valores" and a clean accept.
    "invalid_inputs": [call([click("EtiqCuadEsp", 0), {"do": "paste", "control": "TextMedEsp",
                                                        "index": 0, "text": "abc"},
                             ACCEPT, typed("TextMedEsp", 0, "650"), lclick(4, 0),
                             typed("TxtValoresEnc", 0, "1.5"), ACCEPT,
                             typed("TxtValoresEnc", 0, "15"), click("ImageDiagonal", 0),
                             typed("TextValores", 0, "40000"), typed("TextValores", 1, "10"),
                             typed("TextValores", 2, "10"), ACCEPT,
                             click("EtiqCnlValores"), ACCEPT])],
    # Offering by door model and exception lists, hiding by the object's fixed dimensions.
    "types_offered": [call([SNAP, click("PictureEsp", 3), click("EtiqCuadEsp", 2),
                             click("EtiqCuadEsp", 1), SNAP, EXIT])],
    # Many recesses: the panel scrolls.
    "recess_panel_scrolls": [call([{"do": "scroll", "value": 900}, SNAP,
                                   {"do": "scroll", "value": 100000}, SNAP, EXIT])],
    # 62 recesses of two values each overflow the 16-bit panel: every title is shown, the
    # last recesses without their values, and the message says from which one.
    "recess_panel_full": [call([SNAP, lclick(4, 21), typed("TxtValoresEnc", 42, "\b\b\b100"),
                                lclick(4, 61), ACCEPT])],
    # Hundreds of components and recesses load; titles come first where the panel height ends.
    "hundreds_of_components": [call([lclick(4, 0), lclick(4, 119), lclick(3, 250), ACCEPT])],
    # Picture names that would leave the temporary folder or name a device are not exported.
    "picture_names": [call([lclick(4, 0), lclick(4, 2), SNAP, EXIT])],
    # Keys without a line in table 2: each cell is still read and translated, and the
    # control keeps its designed caption.
    "captions_missing_keys": [call([SNAP, EXIT])],
    # All three measures special: width above its maximum fails first; then a height above
    # its maximum adds no line and a depth below its minimum adds one.
    "limits_after_a_failure": [call([typed("TextMedEsp", 0, "1300"),
                                     typed("TextMedEsp", 1, "1000"),
                                     typed("TextMedEsp", 2, "200"), ACCEPT, EXIT])],
    # Two recess values left empty: the missing-value text is looked up at each of them.
    "recess_values_missing": [call([lclick(4, 0), typed("TxtValoresEnc", 0, "\b"),
                                    typed("TxtValoresEnc", 1, "\b"), ACCEPT, EXIT])],
    # Labels and a title with "&" and "<", copied into the cut-out document as they are: the
    # value above its maximum is refused, the corrected ones are stored and annotated, and
    # they come back on reopening.
    "cut_out_texts": [
        call([lclick(4, 0), typed("TxtValoresEnc", 0, "\b\b\b900"), ACCEPT,
              typed("TxtValoresEnc", 0, "\b\b\b120"), typed("TxtValoresEnc", 1, "\b\b\b80"),
              lclick(4, 1), typed("TxtValoresEnc", 2, "\b\b\b30"), ACCEPT]),
        call([SNAP, EXIT])],
    # Flags 15, 16, 17 that are no booleans: on the object, then on a component (the error
    # trap, no dialog); then texts VB does read as booleans.
    "flags_not_boolean": [call([], obj=100), call([], obj=200), call([SNAP, EXIT], obj=300)],
    # A component 2,000 levels down is classified, listed with the last prefix and chosen.
    "deep_component": [call([SNAP, lclick(3, 1), ACCEPT])],
}

DEEP_LEVELS = 2000
COMPACT = {"deep_component"}  # indented, its nesting alone would take megabytes


def deep_chain(levels):
    """A chain of unlisted components (no code) ending, `levels` down, in a listed "Otros"."""
    node = comp(3000 + levels, "O_FONDO", "Pieza al fondo")
    for level in range(levels - 1, 0, -1):
        node = {"id": 3000 + level, "info": {"15": "0", "16": "0", "17": "0"},
                "children": [node]}
    return node


def recess_cabinet(count, params, others=0):
    c = cabinet()
    kids = [k for k in c["children"] if "_CJ" not in k["info"]["4"]]
    specs = " ".join("ENC%d(MIN=0,MAX=@L)" % (p % 3 + 1) for p in range(params))
    for i in range(count):
        kids.append(comp(1000 + i, "P_CJ%d" % i, "Encastre %d" % i, "0",
                         script="/// PILAR1 " + specs))
    for i in range(others):
        kids.append(comp(5000 + i, "O_%d" % i, "Otro %d" % i, "0"))
    c["children"] = kids
    return c


def scene_for(name):
    if name == "recess_panel_scrolls":
        return [recess_cabinet(6, 3)]
    if name == "recess_panel_full":
        return [recess_cabinet(62, 2)]
    if name == "hundreds_of_components":
        return [recess_cabinet(120, 1, 300)]
    if name == "picture_names":
        c = cabinet()
        kids = [k for k in c["children"] if "_CJ" not in k["info"]["4"]]
        for i, pic in enumerate(["..\\fuera", "CON.bmp", "PILAR1", "sub/PILAR1"]):
            kids.append(comp(700 + i, "P_CJ%d" % i, "Encastre " + pic, "0",
                             script="/// " + pic + " ENC1(MIN=0,MAX=@L)"))
        c["children"] = kids
        return [c]
    if name == "types_offered":
        c = cabinet()
        c["info"]["16"] = "0"
        return [c]
    if name == "default_measures":
        return [cabinet(width="650")]
    if name == "wizard_catalogues":
        return [cabinet(300, "31", file_name="forma10"), cabinet(500, "34", file_name="forma10"),
                cabinet(600, "32", file_name="forma10"), cabinet(700, "33", file_name="forma10"),
                cabinet()]
    if name == "missing_catalogue":
        return [cabinet(400, file_name="perdido")]
    if name == "limits_after_a_failure":
        return [cabinet(width="650", height="750", depth="600")]
    if name == "cut_out_texts":
        c = cabinet()
        c["children"][-2]["info"]["5"] = "Pilar <dcho.> & Cía"
        c["children"][-2]["script"] = "/// PILAR1 ENC3(MIN=10,MAX=@P)"
        return [c]
    if name == "flags_not_boolean":
        on_object = cabinet(100)
        on_object["info"]["17"] = "sí"
        on_component = cabinet(200)
        on_component["children"][7]["info"]["16"] = ""
        read_as_vb = cabinet(300)
        read_as_vb["info"].update({"15": "True", "16": "0", "17": " 1 "})
        read_as_vb["children"][7]["info"].update({"15": "tRUE", "16": "#FALSE#", "17": "-2.5"})
        return [on_object, on_component, read_as_vb]
    if name == "long_texts":
        c = cabinet()
        long_text = "Nota\u0000oculta " + "0123456789" * 7000
        c["children"][-3]["info"]["49"] = long_text + "\r\n" + "-" * 23 + "\r\nbloque viejo"
        c["children"][-1]["info"]["49"] = long_text + "\r\nbloque\r\nviejo"
        return [c]
    if name == "deep_component":
        c = cabinet()
        c["children"].append(deep_chain(DEEP_LEVELS))
        return [c]
    return [cabinet()]


def offered_catalogue():
    cat = catalogue()
    rules = {"MO_EA": "MO: M01", "MO_EAl": "MO: M02", "MO_EF": "MO: M01", "MO_EAAl": "MO: M02",
             "MO_EAF": "MO: M01", "MO_EAlF": "MO: M01", "MO_EAAlF": "MO: M01"}
    cat["tables"]["2"] = [l for l in cat["tables"]["2"] if l["code"] not in rules]
    cat["tables"]["2"] += [{"code": k, "cols": {"2": v}} for k, v in rules.items()]
    cat["tables"]["2"].append({"code": "EX_EAl", "cols": {"2": "EX: A60-TIBER B60-TIBER"}})
    return cat


def english_dictionary():
    names = ["Edición de especiales", "Costados", "Frentes", "Equip. interior", "Otros",
             "ANCHO", "ALTO", "Medidas", "Ancho:", "Salir sin guardar", "Aceptar Componentes"]
    english = ["Special editing", "Sides", "Fronts", "Interior", "Others", "WIDTH", "HEIGHT",
               "Measures", "Width:", "Leave without saving", "Accept components"]
    return {"ENG": dict(zip(names, english))}


def catalogues_for(name):
    if name == "types_offered":
        return {"C:\\Cat\\cocina.cat": offered_catalogue()}
    if name == "wizard_catalogues":
        return {"C:\\Cat\\cocina.cat": catalogue(), "C:\\Cat\\forma10.cat": catalogue()}
    if name == "cut_out_texts":
        cat = catalogue()
        for line in cat["tables"]["2"]:
            if line["code"] in ("ENC1", "ENC2"):
                line["cols"]["9"] = {"ENC1": "Prof. & alto", "ENC2": "A<B"}[line["code"]]
        return {"C:\\Cat\\cocina.cat": cat}
    if name == "captions_missing_keys":
        cat = catalogue()
        missing = {"TR_0002", "TR_0027", "TR_0024"}
        cat["tables"]["2"] = [l for l in cat["tables"]["2"] if l["code"] not in missing]
        return {"C:\\Cat\\cocina.cat": cat}
    return None


# The demo: a complete edit of a cabinet, accepted, then the dialog reopened.
DEMO = [
    call([SNAP, click("EtiqCuadEsp", 0), typed("TextMedEsp", 0, "650"), lclick(0, 1),
          lclick(1, 0), lclick(2, 0), lclick(4, 0), typed("TxtValoresEnc", 0, "150"),
          typed("TxtValoresEnc", 1, "300"), lclick(4, 1), click("ImageDiagonal", 0),
          typed("TextValores", 0, "200"), typed("TextValores", 1, "150"),
          typed("TextValores", 2, "250"), SNAP, ACCEPT]),
    call([SNAP, EXIT]),
]
DEMO_FILE = os.path.join(HERE, "..", "..", "..", "samples", "dialog", "12_dialogo_especiales.json")

# The demo's catalogue also carries the placement messages, so that it is a complete
# catalogue (quorbel-sim lint finds none missing).
PLACEMENT_TEXTS = {k: v for k, v in textos.MENSAJES.items() if k not in TEXTS}


def demo_catalogue():
    cat = catalogue()
    cat["tables"]["2"] += [{"code": k, "cols": {"9": v}} for k, v in PLACEMENT_TEXTS.items()]
    return {"C:\\Cat\\cocina.cat": cat}


def main():
    sys.setrecursionlimit(10 * DEEP_LEVELS)  # the encoder recurses once per nesting level
    for name, calls in SCENARIOS.items():
        data = world(scene_for(name), calls, catalogues_for(name))
        if name in ("captions_translated", "captions_missing_keys"):
            data["application"]["language"] = "ENG"
            data["application"]["dictionary"] = english_dictionary()
        if name == "languages_same_ignoring_case":
            data["application"]["language"] = "esp"
            data["application"]["dictionary"] = {"esp": {"Atención": "ATENCION"}}
        with open(os.path.join(HERE, name + ".json"), "w", encoding="utf-8") as f:
            if name in COMPACT:
                json.dump(data, f, ensure_ascii=False, separators=(",", ":"))
            else:
                json.dump(data, f, ensure_ascii=False, indent=1)
            f.write("\n")
    with open(DEMO_FILE, "w", encoding="utf-8") as f:
        json.dump(world([cabinet()], DEMO, demo_catalogue()), f, ensure_ascii=False, indent=1)
        f.write("\n")


if __name__ == "__main__":
    main()
