# SPDX-License-Identifier: MIT
"""Many charts, drawn by several threads."""

from __future__ import annotations

import os
from collections import deque
from collections.abc import Generator, Iterable, Iterator
from functools import partial
from itertools import islice
from operator import methodcaller
from threading import get_native_id
from time import monotonic, perf_counter, sleep
from typing import TYPE_CHECKING, Any, Deque, List, Literal, Optional, Union, overload

from tovangl._chart import Chart
from tovangl._picture import PdfPicture, Picture, SvgPicture

if TYPE_CHECKING:
    from collections.abc import Callable
    from concurrent.futures import Future, ThreadPoolExecutor

    Result = Union[Picture, SvgPicture, PdfPicture, Exception]
    Results = Generator[Result, None, None]
    Render = Callable[[Chart], Result]

_CHARTS_AHEAD = 8  # of each thread: enough that none waits for the caller
_CHARTS_OF_A_TASK = 4
_LONGEST_END = 1.0  # seconds
_END_PAUSE = 0.0005  # seconds
_FAST = 0.002  # seconds: below that, handing each chart over on its own costs too much of its time

_RENDERERS = {
    "png": methodcaller("render"),
    "svg": methodcaller("render_svg"),
    "pdf": methodcaller("render_pdf"),
}


@overload
def render_many(
    charts: Iterable[Chart], jobs: Optional[int] = None, *, format: Literal["png"] = ...
) -> Generator[Union[Picture, Exception], None, None]:
    ...


@overload
def render_many(
    charts: Iterable[Chart], jobs: Optional[int] = None, *, format: Literal["svg"]
) -> Generator[Union[SvgPicture, Exception], None, None]:
    ...


@overload
def render_many(
    charts: Iterable[Chart], jobs: Optional[int] = None, *, format: Literal["pdf"]
) -> Generator[Union[PdfPicture, Exception], None, None]:
    ...


def render_many(
    charts: Iterable[Chart], jobs: Optional[int] = None, *, format: str = "png"
) -> Generator[Any, None, None]:
    """Draws charts in several threads, and gives the results in the order of the charts.

    The result of a chart that fails is its exception, and the others go on:

    >>> from tovangl import pie
    >>> results = render_many([pie({"a": 1}), pie({"a": 1}, theme="loud")])
    >>> [isinstance(result, Picture) for result in results]
    [True, False]

    Charts are taken from the iterable as their turn comes, by the caller's thread, and only a few
    ahead of the results, so that there may be any number of them. An exception of the iterable
    itself comes after the results of all charts before it. The other threads end with the last
    result, or when the iterator is closed.

    :param jobs: the number of threads that draw, of which the caller's is one while the next result
        is not there yet; None: the number of processors that the process may use. A caller that
        waits for something else, such as a database, may want one more
    :param format: ``png``, or ``svg`` or ``pdf`` for what Chart.render_svg() or Chart.render_pdf() gives
    """
    if format not in _RENDERERS:
        raise ValueError(f"{format!r} is not png, svg or pdf")
    render = partial(_render, _RENDERERS[format])
    if jobs is None:
        jobs = len(os.sched_getaffinity(0))
    if jobs < 1:
        raise ValueError(f"{jobs} jobs draw nothing")
    if jobs == 1:
        return (render(chart) for chart in charts)
    return _render_in_threads(charts, jobs, render)


def _render(draw: Render, chart: Chart) -> Result:
    try:
        return draw(chart)
    except Exception as error:
        return error


def _render_all(render: Render, charts: List[Chart]) -> List[Result]:
    return [render(chart) for chart in charts]


class _Task:
    """Charts that one thread draws one after the other: whichever comes to them first."""

    def __init__(
        self, charts: List[Chart], render: Render, threads: Optional[ThreadPoolExecutor]
    ) -> None:
        self._charts = charts
        self._render = render
        self._results: Optional[List[Result]] = None
        self._process = os.getpid()
        draw = partial(_render_all, render, charts)
        self._future = _begin(threads, draw) if threads else None

    def draw(self) -> None:
        """Draws the charts in the caller's thread, if no other has begun to."""
        if not self.is_drawn() and self.cancel():
            self._results = _render_all(self._render, self._charts)

    def is_drawn(self) -> bool:
        """Whether the results are there; for the caller's thread."""
        future = self._living_future()
        return self._results is not None or (future is not None and future.done())

    def results(self) -> List[Result]:
        """One for each chart, as soon as all are drawn."""
        future = self._living_future()
        if self._results is None and future is not None:
            self._results = future.result()
        return self._results or []

    def cancel(self) -> bool:
        """Keeps other threads from beginning; False if one has begun."""
        future = self._living_future()
        return future is None or future.cancel()

    def _living_future(self) -> Optional[Future[List[Result]]]:
        """None where no thread will ever draw: a forked child has none of its parent's threads, and
        must not ask for locks that they held."""
        return self._future if os.getpid() == self._process else None


def _begin(
    threads: ThreadPoolExecutor, draw: Callable[[], List[Result]]
) -> Optional[Future[List[Result]]]:
    """None where no thread can be started: the interpreter ends, or the machine has no more."""
    try:
        return threads.submit(draw)
    except RuntimeError:
        return None


def _render_in_threads(charts: Iterable[Chart], jobs: int, render: Render) -> Results:
    from concurrent.futures import ThreadPoolExecutor

    started: List[int] = []
    process = os.getpid()

    def begin_task(task: List[Chart]) -> _Task:
        return _Task(task, render, threads if os.getpid() == process else None)

    try:
        with ThreadPoolExecutor(
            jobs - 1, "tovangl", initializer=lambda: started.append(get_native_id())
        ) as threads:
            yield from _render_tasks(charts, jobs, begin_task)
    finally:
        _wait_for_end(started)


def _render_tasks(
    charts: Iterable[Chart], jobs: int, begin_task: Callable[[List[Chart]], _Task]
) -> Results:
    pending: Deque[_Task] = deque()
    failures: List[Exception] = []
    most_ahead = jobs * _CHARTS_AHEAD - _CHARTS_OF_A_TASK
    taken = given = 0
    begin = perf_counter()
    source = _until_failure(charts, failures)
    try:
        while task := list(islice(source, _task_size(given, perf_counter() - begin))):
            pending.append(begin_task(task))
            taken += len(task)
            while taken - given > most_ahead:
                results = _results_of_first(pending)
                given += len(results)
                yield from results
        while pending:
            yield from _results_of_first(pending)
    finally:
        for unwanted in pending:
            unwanted.cancel()
    for failure in failures:
        raise failure


def _results_of_first(pending: Deque[_Task]) -> List[Result]:
    """Draws tasks that no thread has begun, while the first of all is not drawn yet."""
    first = pending.popleft()
    for task in (first, *pending):
        if first.is_drawn():
            break
        task.draw()
    return first.results()


def _wait_for_end(threads: Iterable[int]) -> None:
    """Waits until threads that Python has joined are gone for the system too.

    On its way from the one to the other a thread frees what Qt keeps for it, which would crash a
    process that ends meanwhile.
    """
    deadline = monotonic() + _LONGEST_END
    for thread in threads:
        while os.path.exists(f"/proc/self/task/{thread}") and monotonic() < deadline:
            sleep(_END_PAUSE)


def _task_size(given: int, seconds: float) -> int:
    """How many charts a thread gets at a time, after so many results in that time.

    Charts that take long are drawn one by one, so that no thread waits for another at the end.
    """
    return _CHARTS_OF_A_TASK if seconds < given * _FAST else 1


def _until_failure(charts: Iterable[Chart], failures: List[Exception]) -> Iterator[Chart]:
    try:
        yield from charts
    except Exception as error:
        failures.append(error)
