# SPDX-License-Identifier: MIT
"""Draws charts with Dask: python3 dask_charts.py FOLDER COUNT [ADDRESS OF A SCHEDULER]"""
import sys
import tarfile
import uuid
from io import BytesIO
from pathlib import Path
import tovangl
from dask import bag, config
from distributed import Client


def chart_of(customer):
    """A pure function: whoever draws the chart, and however often, the picture is the same."""
    sales = [(month, customer * place % 997) for place, month in enumerate("JFMAMJJASOND", 1)]
    return tovangl.bars(sales, id=f"customer-{customer}", width=400, height=250)


def draw_archive(customers, folder):
    """Draws a partition into one archive, which appears when it is whole; gives the failures."""
    charts = [chart_of(customer) for customer in customers]
    results = list(tovangl.render_many(charts, jobs=1))  # Dask has a process for each processor
    Path(folder).mkdir(parents=True, exist_ok=True)
    unfinished = Path(folder, f"{uuid.uuid4()}.unfinished")
    with tarfile.open(unfinished, "w") as archive:
        for chart, result in zip(charts, results):
            if isinstance(result, tovangl.Picture):
                file = tarfile.TarInfo(f"{chart.id}.png")
                file.size = len(result.png)
                archive.addfile(file, BytesIO(result.png))
    unfinished.rename(Path(folder, f"{charts[0].id}.tar"))
    return [(c.id, str(r)) for c, r in zip(charts, results) if isinstance(r, Exception)]


if __name__ == "__main__":
    folder, count, *address = sys.argv[1:]
    config.set(distributed__worker__profile__enabled=False, distributed__admin__tick__interval="1s")
    with Client(*address) if address else Client(n_workers=2, threads_per_worker=1) as client:
        customers = bag.from_sequence(range(int(count)), partition_size=500)
        print(customers.map_partitions(draw_archive, folder).compute())
