#!/usr/bin/env python3
"""Turns the benchmark program's JSON output into bench/RESULTS.md: one table of ratios (this
library's time divided by each peer's, on the same operation and size) and one of bytes per
element. Benchmark names have the form "operation/container/size"."""
import json
import platform
import re
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


def main(ruta):
    datos = json.load(open(ruta))
    tiempos = defaultdict(dict)  # (operation, size) -> container -> ns per iteration
    bytes_por = defaultdict(dict)
    for b in datos["benchmarks"]:
        if b.get("run_type") == "aggregate":
            continue
        # drop the run options Google Benchmark appends, such as "iterations:1"
        partes = [p for p in b["name"].split("/") if not re.match(r"(iterations|min_time|repeats|threads):", p)]
        operacion, contenedor, tamanyo = partes
        clave = (operacion, int(tamanyo))
        if "bytes_per_element" in b:
            bytes_por[clave][contenedor] = b["bytes_per_element"]
        else:
            tiempos[clave][contenedor] = b["real_time"]

    print("# Benchmark results\n")
    print(f"Machine: {maquina(datos.get('context', {}))}.\n")
    print("Ratios are this library's time divided by the peer's on the same data in the same run: "
          "below 1.00 this library is faster. Regenerate with `tools/bench`.\n")
    peers = sorted({c for v in tiempos.values() for c in v if c != "arrays"})
    print("| operation | size | " + " | ".join(peers) + " |")
    print("|---|---:|" + "---:|" * len(peers))
    for (operacion, tamanyo), v in sorted(tiempos.items()):
        if "arrays" not in v:
            continue
        celdas = [f"{v['arrays'] / v[p]:.3f}" if p in v and v[p] > 0 else "" for p in peers]
        print(f"| {operacion} | {tamanyo:,} | " + " | ".join(celdas) + " |")
    if bytes_por:
        print("\n## Bytes per element\n")
        contenedores = sorted({c for v in bytes_por.values() for c in v})
        print("| measure | size | " + " | ".join(contenedores) + " |")
        print("|---|---:|" + "---:|" * len(contenedores))
        for (operacion, tamanyo), v in sorted(bytes_por.items()):
            print(f"| {operacion} | {tamanyo:,} | " +
                  " | ".join(f"{v[c]:.2f}" if c in v else "" for c in contenedores) + " |")


if __name__ == "__main__":
    main(sys.argv[1])
