#!/usr/bin/env python3
"""Turns the benchmark program's JSON outputs (a folder of them, one per process that tools/bench
ran) into bench/RESULTS.md: the targets met or missed, one table of ratios (this library's time
divided by each peer's, on the same operation and size), one of bytes per element, and the output
of the 4·10^9-element run when given. Benchmark names have the form "operation/container/size"."""
import glob
import json
import os
import platform
import re
import statistics
import subprocess
import sys
from collections import defaultdict


def maquina(contexto):
    modelo = ""
    try:
        for linea in open("/proc/cpuinfo"):
            if linea.startswith("model name"):
                modelo = linea.split(":", 1)[1].strip()
                break
    except OSError:
        pass
    memoria = ""
    try:
        kb = int(open("/proc/meminfo").readline().split()[1])
        memoria = f"{kb / 2**20:.0f} GiB"
    except (OSError, ValueError, IndexError):
        pass
    compilador = subprocess.run(["c++", "--version"], capture_output=True, text=True).stdout.splitlines()[0]
    return (f"{modelo or platform.processor()}, {contexto.get('num_cpus')} CPUs, {memoria}, "
            f"{platform.system()} {platform.release()}, {compilador}; run {contexto.get('date')}")


# The targets: (operation, size, peer, largest ratio), or with a fifth item "≥" the smallest ratio.
# Ratios are this library's time divided by the peer's; a peer of None is a bytes-per-element
# bound on this library alone. The C++ face ("arrays.hpp") is held to the C traversal's speed.
OBJETIVOS = [
    ("append", 10**7, "std::deque", 1.5),
    ("append", 10**7, "GArray", 1.0),
    ("random_get", 10**6, "std::deque", 2.0),
    ("random_get", 10**7, "std::deque", 2.0),
    ("random_get", 10**6, "GSequence", 0.01),
    ("random_get_after_inserts", 10**6, "std::deque", 4.0),
    ("random_get_after_inserts", 10**7, "std::deque", 4.0),
    ("random_get_after_inserts", 10**6, "GSequence", 0.01),
    ("random_get_after_inserts", 10**7, "GSequence", 0.01),
    ("traversal", 10**7, "std::vector", 1.1),
    ("traversal", 10**6, "arrays.hpp", 0.9, "≥"),
    ("random_insert_delete", 10**6, "std::vector", 0.01),
    ("random_insert_delete", 10**6, "GArray", 0.01),
    ("random_insert_delete", 10**6, "std::deque", 0.01),
    ("random_insert_delete", 10**6, "GSequence", 0.25),
    ("sort_random", 10**6, "qsort", 0.6),
    ("sort_random", 10**6, "std::sort", 1.5),
    ("sort_user_comparator", 10**6, "qsort", 1.3),
    ("sort_sorted", 10**6, "qsort", 0.10),
    ("sort_reversed", 10**6, "qsort", 0.04),
    ("sort_equal", 10**6, "qsort", 0.07),
    ("sort_random", 10**6, "pdqsort", 0.5),
    ("sort_random", 10**7, "pdqsort", 0.5),
    ("sort_random_long", 10**6, "pdqsort", 0.5),
    ("sort_random_long", 10**7, "pdqsort", 0.5),
    ("sort_random_long64", 10**6, "pdqsort", 0.5),
    ("sort_random_long64", 10**7, "pdqsort", 0.5),
    ("bytes_after_appends", 10**6, None, 8.4),
    ("bytes_after_appends", 10**7, None, 8.4),
    ("bytes_after_appends", 10**8, None, 8.4),
    ("bytes_after_inserts", 10**6, None, 12.0),
    ("bytes_after_inserts", 10**7, None, 12.0),
]


def imprime_objetivos(tiempos, bytes_por):
    print("## Targets\n")
    print("| operation | size | against | target | measured | met |")
    print("|---|---:|---|---:|---:|---|")
    for operacion, tamanyo, peer, limite, *sentido in OBJETIVOS:
        minimo = sentido == ["≥"]
        if peer is None:
            medida = bytes_por.get((operacion, tamanyo), {}).get("arrays")
            contra = "bytes per element"
        else:
            v = tiempos.get((operacion, tamanyo), {})
            medida = v["arrays"] / v[peer] if "arrays" in v and v.get(peer) else None
            contra = peer
        texto = "not run" if medida is None else f"{medida:.3f}"
        dentro = medida is not None and (medida >= limite if minimo else medida <= limite)
        cumple = "" if medida is None else ("yes" if dentro else "**no**")
        print(f"| {operacion} | {tamanyo:,} | {contra} | {'≥' if minimo else '≤'} {limite} "
              f"| {texto} | {cumple} |")
    print()


# The shapes of the sort benchmarks, each held to at most twice the same type's random input.
FORMAS = ["sorted", "reversed", "equal", "organ_pipe", "sawtooth", "stagger", "plateau"]
TIPOS = [("double", ""), ("Long", "_long"), ("Long64", "_long64"), ("BYTE", "_byte")]


def imprime_formas(tiempos, tamanyo=10**6, limite=2.0):
    print(f"\n## Sorting shapes against random input ({tamanyo:,} elements)\n")
    print(f"This library's time on each shape divided by its time on random input of the same type; "
          f"the target is at most {limite}.\n")
    print("| shape | " + " | ".join(nombre for nombre, _ in TIPOS) + " |")
    print("|---|" + "---:|" * len(TIPOS))
    for forma in FORMAS:
        celdas = []
        for _, sufijo in TIPOS:
            t = tiempos.get((f"sort_{forma}{sufijo}", tamanyo), {}).get("arrays")
            base = tiempos.get((f"sort_random{sufijo}", tamanyo), {}).get("arrays")
            celdas.append("" if not t or not base else
                          f"{t / base:.3f}" + ("" if t / base <= limite else " **over**"))
        print(f"| {forma} | " + " | ".join(celdas) + " |")


def imprime_auxiliar(auxiliar):
    if not auxiliar:
        return
    print("\n## Scratch memory of the default sort\n")
    print("The rise of the process's peak resident memory while the library sorts random values "
          "with the default order, in bytes per element (one copy of the array is the value's "
          "size; a copy that the C library's allocator makes from memory the process already "
          "holds does not show). The target is at most one copy.\n")
    print("| type | size | scratch bytes per element | value size |")
    print("|---|---:|---:|---:|")
    for (operacion, tamanyo), valor in sorted(auxiliar.items()):
        nombre, tam = TAMANYOS_VALOR[operacion]
        print(f"| {nombre} | {tamanyo:,} | {valor:.2f} | {tam} |")


TAMANYOS_VALOR = {"sort_scratch": ("double", 8), "sort_scratch_long": ("Long", 4),
                  "sort_scratch_long64": ("Long64", 8), "sort_scratch_byte": ("BYTE", 1)}


def fecha(salidas):
    return salidas[0].get("context", {}).get("date", "?") if salidas else "?"


def lee_muestras(carpeta):
    """Every repetition's value in the folder's outputs: times, bytes per element and scratch bytes
    per element, each by (operation, size) (and container), and the outputs themselves."""
    salidas = [json.load(open(r)) for r in sorted(glob.glob(os.path.join(carpeta, "*.json")))]
    # (operation, size) -> container -> every repetition's value; the median is reported
    muestras_tiempo = defaultdict(lambda: defaultdict(list))
    muestras_bytes = defaultdict(lambda: defaultdict(list))
    muestras_auxiliar = defaultdict(list)  # (operation, size) -> scratch bytes per element
    for b in (b for datos in salidas for b in datos["benchmarks"]):
        if b.get("run_type") == "aggregate":
            continue
        # drop the run options Google Benchmark appends, such as "iterations:1"
        opcion = r"(iterations|min_time|repeats|threads):"
        partes = [p for p in b["name"].split("/") if not re.match(opcion, p)]
        operacion, contenedor, tamanyo = partes
        clave = (operacion, int(tamanyo))
        if "scratch_bytes_per_element" in b:
            muestras_auxiliar[clave].append(b["scratch_bytes_per_element"])
        elif "bytes_per_element" in b:
            muestras_bytes[clave][contenedor].append(b["bytes_per_element"])
            muestras_bytes[(operacion + ", mapped", int(tamanyo))][contenedor].append(
                b["mapped_bytes_per_element"])
        else:
            muestras_tiempo[clave][contenedor].append(b["real_time"])
    return salidas, muestras_tiempo, muestras_bytes, muestras_auxiliar


def main(carpeta, encima=None):
    salidas, muestras_tiempo, muestras_bytes, muestras_auxiliar = lee_muestras(carpeta)
    if encima:
        # A later run of some benchmarks replaces everything the earlier one measured of the same
        # operation and size, peers included, so that each ratio still comes from one run.
        nuevas, tiempo, bytes_, auxiliar_ = lee_muestras(encima)
        for muestras, mas in ((muestras_tiempo, tiempo), (muestras_bytes, bytes_),
                              (muestras_auxiliar, auxiliar_)):
            muestras.update(mas)
    mediana = lambda muestras: {c: statistics.median(v) for c, v in muestras.items()}
    tiempos = {k: mediana(v) for k, v in muestras_tiempo.items()}
    bytes_por = {k: mediana(v) for k, v in muestras_bytes.items()}
    auxiliar = {k: statistics.median(v) for k, v in muestras_auxiliar.items()}

    print("# Benchmark results\n")
    print(f"Machine: {maquina(salidas[0].get('context', {}) if salidas else {})}.\n")
    print("Ratios are this library's time divided by the peer's on the same data in the same run "
          "(the median of every repetition): below 1.00 this library is faster. Each benchmark "
          "runs in a process of its own, so that none inherits the heap another left behind, pinned "
          "to one CPU, with three repetitions; one whose process is quick (tools/bench says how "
          "quick) runs in three processes, in three passes over the suite, so that neither one "
          "process that lands in a slow state nor a slow spell of the machine decides its figure. "
          "The C library's allocator runs with fixed thresholds (bench/asignacion.cpp). "
          "Regenerate with `tools/bench`.\n")
    if encima:
        print(f"The operations measured again in a run of {fecha(nuevas)} (`BENCH_SOLO` in "
              f"tools/bench; {len(nuevas)} processes) replace those of the run above: every "
              "ratio of an operation and size comes from one run.\n")
    imprime_objetivos(tiempos, bytes_por)
    print("## All ratios\n")
    peers = sorted({c for v in tiempos.values() for c in v if c != "arrays"})
    print("| operation | size | " + " | ".join(peers) + " |")
    print("|---|---:|" + "---:|" * len(peers))
    for (operacion, tamanyo), v in sorted(tiempos.items()):
        if "arrays" not in v:
            continue
        celdas = [f"{v['arrays'] / v[p]:.3f}" if p in v and v[p] > 0 else "" for p in peers]
        print(f"| {operacion} | {tamanyo:,} | " + " | ".join(celdas) + " |")
    imprime_formas(tiempos, 10**6)
    imprime_formas(tiempos, 10**7)
    imprime_auxiliar(auxiliar)
    if bytes_por:
        print("\n## Bytes per element\n")
        print("Bytes handed out to the container (the C library's bytes in use, and the slots this "
              "library's slabs hand out) per element; \"mapped\" counts the slabs' chunks whole, "
              "their free slots included. The targets use the first.\n")
        contenedores = sorted({c for v in bytes_por.values() for c in v})
        print("| measure | size | " + " | ".join(contenedores) + " |")
        print("|---|---:|" + "---:|" * len(contenedores))
        for (operacion, tamanyo), v in sorted(bytes_por.items()):
            print(f"| {operacion} | {tamanyo:,} | " +
                  " | ".join(f"{v[c]:.2f}" if c in v else "" for c in contenedores) + " |")


def imprime_gigante(ruta):
    print("\n## One BYTE array of 4·10^9 elements (bench/gigante.cpp)\n")
    print("```")
    print(open(ruta).read().rstrip())
    print("```")


if __name__ == "__main__":
    # tabla_bench.py FOLDER [GIGANTE_TXT] [--encima LATER_FOLDER]
    argumentos = sys.argv[1:]
    encima = None
    if "--encima" in argumentos:
        i = argumentos.index("--encima")
        encima = argumentos[i + 1]
        del argumentos[i:i + 2]
    main(argumentos[0], encima)
    if len(argumentos) > 1:
        imprime_gigante(argumentos[1])
