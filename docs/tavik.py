"""Curves of capacitors from Python, through one running tavik-cli."""
import json
import subprocess


class Tavik:
    def __init__(self, program="tavik-cli", *options):
        self.batch = subprocess.Popen([program, "curve", "--requests", "-", *options], encoding="utf-8",
                                      stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def __call__(self, **request):
        """The answer to a request such as part="...", chart="...", dcBias="12V"; ValueError with its error."""
        print(json.dumps(request), file=self.batch.stdin, flush=True)
        # A program that cannot start answers nothing, and says why.
        answer = json.loads(self.batch.stdout.readline() or json.dumps({"error": self.batch.stderr.read()}))
        if "error" in answer:
            raise ValueError(answer["error"])
        return answer

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.batch.communicate()
